#include <XCOMMON/XLabel.h>
