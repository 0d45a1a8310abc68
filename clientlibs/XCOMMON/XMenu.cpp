#include "XCOMMON/XMenu.h"
