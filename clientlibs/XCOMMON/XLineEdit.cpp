#include "XCOMMON/XLineEdit.h"
