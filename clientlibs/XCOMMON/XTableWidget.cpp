#include "XCOMMON/XTableWidget.h"
