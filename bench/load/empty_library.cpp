// A library that has one function and nothing to set up. It needs the same libraries
// as the real one.

extern "C" __attribute__((visibility("default"))) const char* getResourceRateStr(int) {
  return "16_9";
}
