#include "plugin/TraceLog.h"

// Compiled once with each call of the lists beside this file: the right ones must compile, the
// wrong ones must not.

void call(const char* text, const tavrin::OptString& object, int number, double real, char letter,
          char* buffer) {
  using tavrin::TraceLogBody;
  (void)text, (void)object, (void)number, (void)real, (void)letter, (void)buffer;
#define TRACE(...) TraceLogBody("", "", "call", nullptr, 1, nullptr, __VA_ARGS__)
  CALL;
}
