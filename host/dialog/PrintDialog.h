#pragma once

#include <memory>

#include <QDialog>

#include "host/panes/SummaryPane.h"
#include "host/task/PrintTask.h"

class QHBoxLayout;
class QStackedWidget;

namespace tavrin {

class DocumentsRow;
class GeneralArea;
class HelpWindow;
class JobButtons;
class LayoutPane;
class Note;
class PaneSwitcher;
class PreviewArea;
class PreviewSwitch;
class SessionPanes;
class SettingsColumn;
class TaskNote;
class TaskPreview;
class TurnPage;

// The Print dialog: shows a task, and passes on to it what the person does. It can be shown at
// once, whatever the task is still waiting for.
class PrintDialog : public QDialog {
  Q_OBJECT

 public:
  // The task outlives the dialog.
  explicit PrintDialog(PrintTask& task, QWidget* parent = nullptr);
  ~PrintDialog() override;

  // Takes a job back that is on its way; else leaves.
  void reject() override;
  // The program is to end: takes back a job that is on its way, and leaves when that is done or has
  // taken too long. Windows in front of the dialog go unanswered.
  void end();
  // Whether the preview is beside the settings where there is room; it is at first. For before the
  // dialog is shown.
  void setPreviewWanted(bool wanted);

 signals:
  // The person wants the preview from now on, or does not.
  void previewWantedChanged(bool wanted);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void build();
  void connectParts();
  void connectTask();
  QSize openingSize() const;
  void makeRoomForPreview(bool wanted);
  void orderAllTabs();

  void showSession();
  void hideSession();
  void showTitle();
  void showStage();
  void showTurning();
  void showResult();
  void showConflicts();
  void showHelp();
  void print();
  void save();
  void askBeforeLosingBacks();
  void leave();
  SummaryPane::Sections allLines() const;

  PrintTask& task;
  QHBoxLayout* row;  // the preview and the pages
  PreviewArea* preview;
  QStackedWidget* pages;  // the settings, and then the result
  SettingsColumn* column;
  QWidget* content;
  DocumentsRow* documents;
  GeneralArea* general;
  PaneSwitcher* switcher;
  Note* conflictNote;
  TaskNote* note;
  JobButtons* buttons;
  PreviewSwitch* previewSwitch;
  std::unique_ptr<TaskPreview> taskPreview;
  LayoutPane* layoutPane;
  SummaryPane* summaryPane;
  std::unique_ptr<SessionPanes> sessionPanes;
  TurnPage* turnPage = nullptr;  // null before paper had to be turned
  HelpWindow* help = nullptr;
};

}  // namespace tavrin
