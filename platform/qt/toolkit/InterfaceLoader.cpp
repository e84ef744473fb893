#include "platform/qt/toolkit/InterfaceLoader.h"

#include <QBuffer>
#include <QDialog>
#include <QUiLoader>

#include "platform/qt/base/MakeChild.h"
#include "platform/qt/controls/PopUpBox.h"
#include "platform/qt/toolkit/DisclosureTriangle.h"
#include "platform/qt/toolkit/InterfaceFile.h"

namespace tavrin {

namespace {

// A form builder that makes only standard widgets and loads no plug-ins.
class StandardWidgetLoader : public QUiLoader {
 public:
  StandardWidgetLoader() { clearPluginPaths(); }

  QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override {
    if (!isKnownWidgetClass(className)) return nullptr;
    QWidget* ours = createOurs(className, parent);
    if (!ours) return QUiLoader::createWidget(className, parent, name);
    ours->setObjectName(name);
    return ours;
  }

  QAction* createAction(QObject*, const QString&) override { return nullptr; }
  QActionGroup* createActionGroup(QObject*, const QString&) override { return nullptr; }

 private:
  static QWidget* createOurs(const QString& className, QWidget* parent) {
    if (className == QStringLiteral("QToolButton")) return makeChild<DisclosureTriangle>(parent);
    if (className == QStringLiteral("QComboBox")) return makeChild<PopUpBox>(parent);
    return nullptr;
  }
};

// The form builder makes a dialog inside another widget a part of it.
void makeWindows(const QWidget& root) {
  constexpr auto kind = Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                        Qt::WindowCloseButtonHint | Qt::CustomizeWindowHint;
  for (QDialog* dialog : root.findChildren<QDialog*>()) {
    dialog->setParent(dialog->parentWidget(), kind);
    dialog->setWindowModality(Qt::ApplicationModal);
  }
}

}  // namespace

std::unique_ptr<QWidget> loadInterfaceFile(const std::filesystem::path& file) {
  auto bytes = readInterfaceFile(file);
  if (!bytes) return nullptr;
  QBuffer device(&*bytes);
  device.open(QIODevice::ReadOnly);
  StandardWidgetLoader loader;
  std::unique_ptr<QWidget> root(loader.load(&device));
  if (root) makeWindows(*root);
  return root;
}

}  // namespace tavrin
