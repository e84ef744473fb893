#pragma once

#include "host/impose/pages/Qpdf.h"

namespace tavrin {

// Standard output as the last of qpdf's pipes. The library finishes its pipes where nothing may be
// thrown, so that what goes wrong is kept for the end.
class OutputPipe : public Pipeline {
 public:
  OutputPipe() : Pipeline("standard output", nullptr) {}

  void write(const unsigned char* data, std::size_t size) override;
  void finish() override;

  // Throws Trouble if not all that was written arrived.
  void check() const;

 private:
  int problem = 0;  // the system's number for the first one
};

}  // namespace tavrin
