// A library that has nothing to register and makes no controls.
extern "C" __attribute__((visibility("default"))) int automationTestNothing() { return 0; }
