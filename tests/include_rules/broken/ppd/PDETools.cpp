#include <QWidget>
#include <plist/plist.h>
#include <gtest/gtest.h>
