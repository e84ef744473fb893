// Code that lies in a bundle's module.
extern "C" __attribute__((visibility("default"))) int sampleFunction() { return 1; }
