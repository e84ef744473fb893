#include "host/program/Identity.h"

#include <QApplication>
#include <QIcon>

namespace tavrin {
namespace {

// Qt reads the drawing itself only with a plug-in that need not be installed.
QIcon icon() {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128, 256})
    icon.addFile(QString(":/icons/hicolor/%1x%1/apps/tavrin-print.png").arg(size), {size, size});
  return icon;
}

}  // namespace

void identifyProgram() {
  QApplication::setApplicationName("tavrin-print");
  QApplication::setDesktopFileName("tavrin-print");
  QApplication::setWindowIcon(icon());
}

}  // namespace tavrin
