#pragma once

#include <map>
#include <string>
#include <utility>

#include <QObject>
#include <QString>

#include "host/request/JobInWords.h"
#include "host/request/JobRequest.h"
#include "host/request/JobSetting.h"
#include "host/task/ScalingField.h"
#include "platform/text/IgnoringCase.h"
#include "platform/text/Result.h"

namespace tavrin {

// What is set for every job, whatever its printer: copies, pages, how pages come to lie on sheets.
// The program and the printer suggest values; a suggestion has no effect once the person has set
// the field. Each field is an option of the job by the print system's own name.
class JobFields : public QObject {
  Q_OBJECT

 public:
  // Which pages: all, or those in a range as the person writes it ("1-3,5").
  struct Pages {
    bool all = true;
    QString range;
  };

  JobFields();

  int copies() const { return copiesField.value; }
  // An impossible number of copies becomes the nearest possible one.
  void setCopies(int copies);
  void suggestCopies(int copies);

  const Pages& pages() const { return pagesField.value; }
  void setPages(Pages pages);
  // The empty range stands for all pages.
  void suggestPageRange(const QString& range);
  // The pages in the print system's form ("1-3,5"), empty for all; or what is wrong with them.
  Result<std::string> pageRanges() const;
  // What is wrong with the pages, or that the document has none of them; else empty.
  QString pagesProblem() const;

  // The setting of this option, which is one of the table (see jobSettings).
  const std::string& value(const std::string& option) const;
  // The same as it has an effect now: a booklet has two pages on a sheet, whatever is set.
  std::string effectiveValue(const std::string& option) const;
  // Nothing changes for a value that the setting does not have.
  void setValue(const std::string& option, const std::string& value);
  // False, and nothing changes, for a value that the setting does not have.
  bool suggestValue(const std::string& option, const std::string& value);
  // Whether there are pages to choose from: not in a document that is known to have one, unless
  // something else was asked for.
  bool hasPagesToChoose() const;
  // Whether the setting makes a difference now, such as the order of pages on a sheet where there
  // are several on it. One that does not is not sent if the person has set it.
  bool matters(const std::string& option) const;

  const ScalingField& scaling() const { return scalingField; }
  void setScaling(ScalingField::Way way);
  void setScalingPercent(int percent);

  // Two for a booklet.
  int pagesPerSheet() const;
  // The same as the setting of "number-up".
  void setPagesPerSheet(int pages);
  bool suggestPagesPerSheet(int pages);

  // How many pages the document has; 0 while nobody knows.
  int documentPages() const { return knownPages; }
  void setDocumentPages(int pages);
  // What the documents are; unknown at first, and where they are not all alike.
  Contents contents() const;
  // How many of the documents are pictures. Several, and nothing else, can come together on sheets.
  void setPictures(int pictures, int documents);

  // Suggests what the request asks for, or else what these options do. A sentence for each option
  // with a value that cannot be meant; else empty.
  QString suggest(const JobRequest& request, const OptionList& options);

  // All fields as options of the job. A usual value is left out, unless options that were given to
  // suggest() have another; pages are left out while they are wrong.
  OptionList options() const;
  // The names of all options that the fields stand for.
  static std::vector<std::string> optionNames();

 signals:
  // A suggestion was taken, or something else is known of the document: what shows the fields shows
  // them anew.
  void suggestionTaken();
  void pagesPerSheetChanged(int pages);
  // Any field has another value, whoever set it.
  void changed();

 private:
  template <class T>
  struct Field {
    T value;
    bool byHand = false;
  };
  using Setting = Field<std::string>;

  template <class T>
  static void take(Field<T>& field, T value);
  bool hasSeveralPictures() const { return knownPictures > 1 && knownPictures == knownDocuments; }
  void followChoices();
  void tellSuggestion(int pagesPerSheetBefore);
  void tellChoice(int pagesPerSheetBefore);
  const Setting& setting(const std::string& option) const;
  const std::string& sentValue(const JobSetting& setting) const;
  void suggestPages(const JobRequest& request, const OptionList& options);
  QStringList suggestSettings(const OptionList& options);

  Field<int> copiesField{1};
  Field<Pages> pagesField{};
  std::map<std::string, Setting, LessIgnoringCase> settings;
  ScalingField scalingField;
  OptionList given;  // to suggest(), in first names
  int knownPages = 0;
  int knownDocuments = 0;
  int knownPictures = 0;
};

}  // namespace tavrin
