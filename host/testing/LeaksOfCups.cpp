// What the leak sanitizer is not to report: libcups forgets the names of a PPD's two-sided choices
// when it closes the PPD. Nothing of ours.

extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() { return "leak:_ppdCacheCreateWithPPD\n"; }
