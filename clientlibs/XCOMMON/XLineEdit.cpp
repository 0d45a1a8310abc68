#include <XCOMMON/XLineEdit.h>
