#include "platform/qt/QtToolkit.h"
#  include <nlohmann/json.hpp>
