#include <XCOMMON/XWidget.h>
