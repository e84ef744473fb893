#include "conflict/SelectedPaper.h"

#include "ppd/PDETools.h"

namespace tavrin {
namespace {

// ISO B5 becomes an envelope on purpose: the printer feeds it as one.
const struct {
  const char* old;
  const char* todays;
} kOldNames[] = {{"B5", "B5JIS"},
                 {"ISOB5", "EnvelopeB5"},
                 {"Env10", "Envelope10"},
                 {"EnvDL", "EnvelopeDL"},
                 {"EnvChou3", "EnvelopeChokei3"}};

bool contains(const OptString& text, const char* part) {
  return text && text->find(part) != std::string::npos;
}

}  // namespace

SelectedPaper::SelectedPaper(const PMPageFormat* format) {
  const PMPaper* paper = format != nullptr ? format->paper() : nullptr;
  if (paper != nullptr) ownName = paper->ppdPaperName();
}

OptString SelectedPaper::todaysName() const {
  for (const auto& [old, todays] : kOldNames) {
    if (ownName == old) return todays;
  }
  return ownName;
}

std::string SelectedPaper::text(ppd_file_t* ppd) const {
  const OptString today = todaysName();
  for (const OptString& name : {today, ownName}) {
    if (const OptString text = PDETools().getLocalizedPaperSize(name, ppd)) return *text;
  }
  return today.value_or("");
}

bool isEnvelope(const OptString& paperName) { return contains(paperName, "Envelope"); }

bool isBanner(const OptString& paperName) { return contains(paperName, "BA"); }

}  // namespace tavrin
