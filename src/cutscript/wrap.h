// Times are added as they come, and wrap around where they do not fit.

#ifndef KYDATASTRUCTURE_CUTSCRIPT_WRAP_H_
#define KYDATASTRUCTURE_CUTSCRIPT_WRAP_H_

namespace ZOL {

inline long long plus(long long a, long long b) {
  return static_cast<long long>(static_cast<unsigned long long>(a) +
                                static_cast<unsigned long long>(b));
}

inline long long minus(long long a, long long b) {
  return static_cast<long long>(static_cast<unsigned long long>(a) -
                                static_cast<unsigned long long>(b));
}

}  // namespace ZOL

#endif  // KYDATASTRUCTURE_CUTSCRIPT_WRAP_H_
