#include "platform/Bundle.h"
