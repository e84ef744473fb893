#include "plugin/MainPDE.h"
#include <QWidget>
