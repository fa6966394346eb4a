[[gnu::section(".component.version"), gnu::used]] extern const char moduleVersion[] = "1.0.40.0";
