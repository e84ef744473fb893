#pragma once

#include <string>
#include <vector>

#include <QObject>

class QWidget;

namespace tavrin {

class FeaturesPane;
class Pane;
class PanelPane;
class PrinterSession;

// The panes of one printer's settings: its features and its panels. They go when this goes, which
// is before the session does.
class SessionPanes : public QObject {
  Q_OBJECT

 public:
  // Makes the panes in that widget.
  SessionPanes(PrinterSession& session, QWidget* widget);
  ~SessionPanes() override;

  // In the order in which the dialog offers them: the features, where there are any, then the
  // panels.
  std::vector<Pane*> offered() const;
  // In the order in which the summary lists them: the panels first.
  std::vector<const Pane*> summedUp() const;
  // The pane to open on; null for a printer without panels.
  Pane* first() const;

 signals:
  // A pane has different controls now.
  void laidOutAnew();
  // A panel could not hand over its choices, and why.
  void saveFailed(const std::string& reason);

 private:
  void addPanels(PrinterSession& session, QWidget* widget);
  void followActions(PrinterSession& session);

  FeaturesPane* features;
  std::vector<PanelPane*> panels;
};

}  // namespace tavrin
