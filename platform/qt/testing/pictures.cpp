// Draws the panel and the windows into PNG files, to be looked at: pictures FOLDER
#include <cstdio>

#include <QApplication>
#include <QDir>
#include <QStyle>
#include <QStyleFactory>
#include <QVBoxLayout>
#include <QWidget>

#include "platform/qt/testing/TestPanel.h"

namespace tavrin {

namespace {

QPalette dark() {
  QPalette palette(QColor(53, 53, 53), QColor(45, 45, 45));
  palette.setColor(QPalette::Base, QColor(35, 35, 35));
  palette.setColor(QPalette::Highlight, QColor(42, 130, 218));
  return palette;
}

struct Look {
  const char* name;
  double points;
  bool isDark;
  const char* suffix;
};

void drawPanel(const QString& file, const Look& look, bool tray, bool expanded) {
  QtToolkit toolkit;
  TestPanel panel(toolkit);
  panel.layOut(tray);
  panel.fill(tray, tray, look.suffix);
  panel.disclose(expanded);
  QWidget host;
  QVBoxLayout layout(&host);
  layout.addWidget(&panel.widget());
  panel.widget().show();
  host.adjustSize();
  host.show();
  QCoreApplication::processEvents();
  host.grab().save(file);
}

void drawWindows(const QString& stem, const Look& look) {
  QtToolkit toolkit;
  TestWindows windows(toolkit);
  windows.fill(look.suffix);
  toolkit.onModalWindow([&](QWidget& window) {
    QCoreApplication::processEvents();
    window.grab().save(stem + window.objectName() + ".png");
    window.close();
  });
  for (auto& [name, window] : windows.windows) {
    window->center();
    window->display();
    toolkit.runModalForWindow(*window);
  }
}

void draw(const QDir& folder, const Look& look) {
  QFont font = QApplication::font();
  font.setPointSizeF(look.points);
  QApplication::setFont(font);
  QApplication::setPalette(look.isDark ? dark() : QApplication::style()->standardPalette());
  const QString stem = folder.filePath(look.name) + "-";
  for (bool tray : {false, true})
    for (bool expanded : {false, true})
      drawPanel(
          stem + (tray ? "tray-" : "notray-") + (expanded ? "expanded" : "collapsed") + ".png",
          look, tray, expanded);
  drawWindows(stem, look);
}

}  // namespace

}  // namespace tavrin

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  if (argc != 2 || !QDir().mkpath(argv[1]))
    return std::fputs("usage: pictures FOLDER\n", stderr), 2;
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  for (const tavrin::Look& look : {tavrin::Look{"light", 9, false, ""},
                                   {"dark", 9, true, ""},
                                   {"large", 16, false, ""},
                                   {"long", 9, false, " mit langem Zusatz"}})
    tavrin::draw(QDir(argv[1]), look);
  return 0;
}
