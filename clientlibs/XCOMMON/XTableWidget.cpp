#include <XCOMMON/XTableWidget.h>
