#include <cups/ppd.h>
#include "ppd/PDETools.h"
