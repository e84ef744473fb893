#pragma once

#include <qpdf/Pipeline.hh>

namespace tavrin {

// Standard output as the last of qpdf's pipes; throws Trouble when it cannot be written.
class OutputPipe : public Pipeline {
 public:
  OutputPipe() : Pipeline("standard output", nullptr) {}

  void write(const unsigned char* data, std::size_t size) override;
  void finish() override;
};

}  // namespace tavrin
