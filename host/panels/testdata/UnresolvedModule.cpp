// A module that needs a function that no library has.

extern "C" int functionThatNobodyHas();

extern "C" int tavrinPDEPrincipalObject() { return functionThatNobodyHas(); }
