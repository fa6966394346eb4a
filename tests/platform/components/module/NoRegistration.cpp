// A library without a registration function and without components.
extern "C" __attribute__((visibility("default"))) int automationTestNothing() { return 0; }
