#include <XCOMMON/XMenu.h>
