#include "XCOMMON/XLabel.h"
