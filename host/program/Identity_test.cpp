#include "host/program/Identity.h"

#include <QApplication>
#include <QIcon>
#include <gtest/gtest.h>

namespace tavrin {
namespace {

TEST(Identity, HasAnIconInEverySize) {
  identifyProgram();
  const QIcon icon = QApplication::windowIcon();
  QApplication::setWindowIcon({});
  for (const int size : {16, 24, 32, 48, 64, 128, 256})
    EXPECT_EQ(icon.pixmap(QSize(size, size), 1.0).size(), QSize(size, size));
}

}  // namespace
}  // namespace tavrin
