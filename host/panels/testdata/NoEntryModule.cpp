// A module of some other program.

extern "C" int somethingElse() { return 0; }
