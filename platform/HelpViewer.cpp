#include "platform/HelpViewer.h"
