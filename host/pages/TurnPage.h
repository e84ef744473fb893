#pragma once

#include <vector>

#include <QScrollArea>

#include "host/task/PrintTask.h"

class QCheckBox;
class QGridLayout;
class QLabel;

namespace tavrin {

class TurnPicture;

// What takes the place of the settings while the person turns the paper, for a printer that cannot
// do it: how, step by step.
class TurnPage : public QScrollArea {
  Q_OBJECT

 public:
  // The task outlives the page.
  TurnPage(PrintTask& task, QWidget* parent);

  // As the person wants the backs; it stays so for all documents.
  JobSequence::BackOrder backOrder() const;

 protected:
  // Shows the steps for the document whose fronts have just been printed, and has a screen reader
  // say them.
  void showEvent(QShowEvent* event) override;

 private:
  void build();
  void addSteps(QGridLayout& grid);
  void refresh();
  QString whichDocument() const;

  PrintTask& task;
  QWidget* content;
  QLabel* headline;
  QLabel* document;
  QLabel* turnStep;
  std::vector<QLabel*> steps;
  TurnPicture* picture;
  QCheckBox* reversed;
};

}  // namespace tavrin
