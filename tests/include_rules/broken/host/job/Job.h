#pragma once

#include <QString>
#include <QWidget>

#include "host/dialog/Dialog.h"
