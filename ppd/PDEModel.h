#pragma once

#include <utility>

#include <cups/ppd.h>

#include "platform/text/OptionalString.h"

namespace tavrin {

// What the panel knows of its seven settings. Each has a PPD option record (borrowed from the PPD;
// null when this printer has no such option), a value (the text of the selected choice, which the
// panel and its summary show) and a ticket (the keyword of the same choice, which the job gets).
// Values and tickets may be absent.
//
// A passive record: whoever sets a value sets its ticket too.
class PDEModel {
 public:
  ppd_option_t* printQualityOption() const { return mPrintQualityOption; }
  void setPrintQualityOption(ppd_option_t* option) { mPrintQualityOption = option; }
  ppd_option_t* paperTypeOption() const { return mPaperTypeOption; }
  void setPaperTypeOption(ppd_option_t* option) { mPaperTypeOption = option; }
  ppd_option_t* paperSourceOption() const { return mPaperSourceOption; }
  void setPaperSourceOption(ppd_option_t* option) { mPaperSourceOption = option; }
  ppd_option_t* dryTimePopUpOption() const { return mDryTimePopUpOption; }
  void setDryTimePopUpOption(ppd_option_t* option) { mDryTimePopUpOption = option; }
  ppd_option_t* dryTimeCheckBoxOption() const { return mDryTimeCheckBoxOption; }
  void setDryTimeCheckBoxOption(ppd_option_t* option) { mDryTimeCheckBoxOption = option; }
  ppd_option_t* blackAndWhiteOption() const { return mBlackAndWhiteOption; }
  void setBlackAndWhiteOption(ppd_option_t* option) { mBlackAndWhiteOption = option; }
  ppd_option_t* imageSharpeningOption() const { return mImageSharpeningOption; }
  void setImageSharpeningOption(ppd_option_t* option) { mImageSharpeningOption = option; }
  ppd_option_t* mirrorOption() const { return mMirrorOption; }
  void setMirrorOption(ppd_option_t* option) { mMirrorOption = option; }

  const OptString& printQuality() const { return mPrintQuality; }
  void setPrintQuality(OptString value) { mPrintQuality = std::move(value); }
  const OptString& paperType() const { return mPaperType; }
  void setPaperType(OptString value) { mPaperType = std::move(value); }
  const OptString& paperSource() const { return mPaperSource; }
  void setPaperSource(OptString value) { mPaperSource = std::move(value); }
  const OptString& blackAndWhite() const { return mBlackAndWhite; }
  void setBlackAndWhite(OptString value) { mBlackAndWhite = std::move(value); }
  const OptString& mirror() const { return mMirror; }
  void setMirror(OptString value) { mMirror = std::move(value); }
  const OptString& imageSharpening() const { return mImageSharpening; }
  void setImageSharpening(OptString value) { mImageSharpening = std::move(value); }
  // Dry time has two kinds of option, of which a printer has at most one, and one value and ticket.
  const OptString& dryTime() const { return mDryTime; }
  void setDryTime(OptString value) { mDryTime = std::move(value); }

  const OptString& printQualityTicket() const { return mPrintQualityTicket; }
  void setPrintQualityTicket(OptString ticket) { mPrintQualityTicket = std::move(ticket); }
  const OptString& paperTypeTicket() const { return mPaperTypeTicket; }
  void setPaperTypeTicket(OptString ticket) { mPaperTypeTicket = std::move(ticket); }
  const OptString& paperSourceTicket() const { return mPaperSourceTicket; }
  void setPaperSourceTicket(OptString ticket) { mPaperSourceTicket = std::move(ticket); }
  const OptString& blackAndWhiteTicket() const { return mBlackAndWhiteTicket; }
  void setBlackAndWhiteTicket(OptString ticket) { mBlackAndWhiteTicket = std::move(ticket); }
  const OptString& mirrorTicket() const { return mMirrorTicket; }
  // The odd capital is the name that every caller knows.
  void setMIrrorTicket(OptString ticket) { mMirrorTicket = std::move(ticket); }
  const OptString& imageSharpeningTicket() const { return mImageSharpeningTicket; }
  void setImageSharpeningTicket(OptString ticket) { mImageSharpeningTicket = std::move(ticket); }
  const OptString& dryTimeTicket() const { return mDryTimeTicket; }
  void setDryTimeTicket(OptString ticket) { mDryTimeTicket = std::move(ticket); }

 private:
  ppd_option_t* mPrintQualityOption = nullptr;     // PrintQuality
  ppd_option_t* mPaperTypeOption = nullptr;        // MediaType
  ppd_option_t* mPaperSourceOption = nullptr;      // PaperSource
  ppd_option_t* mDryTimePopUpOption = nullptr;     // DupDryTime as a pick-one option
  ppd_option_t* mDryTimeCheckBoxOption = nullptr;  // DupDryTime as a boolean option
  ppd_option_t* mBlackAndWhiteOption = nullptr;    // ColorModel
  ppd_option_t* mImageSharpeningOption = nullptr;  // Sharpening
  ppd_option_t* mMirrorOption = nullptr;           // Mirror

  OptString mPrintQuality;
  OptString mPaperType;
  OptString mPaperSource;
  OptString mBlackAndWhite;
  OptString mMirror;
  OptString mImageSharpening;
  OptString mDryTime;

  OptString mPrintQualityTicket;
  OptString mPaperTypeTicket;
  OptString mPaperSourceTicket;
  OptString mBlackAndWhiteTicket;
  OptString mMirrorTicket;
  OptString mImageSharpeningTicket;
  OptString mDryTimeTicket;
};

}  // namespace tavrin
