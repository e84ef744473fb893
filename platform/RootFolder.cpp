#include "platform/RootFolder.h"
