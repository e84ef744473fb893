#include "platform/PropertyList.h"
