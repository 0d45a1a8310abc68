#include "XCOMMON/XWidget.h"
