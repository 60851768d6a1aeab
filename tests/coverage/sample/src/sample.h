// What the check of the coverage is tried on. main.cpp calls it.

inline int line(int number) {
  if (number == 0) return 1;
  ++number;
  return number;
}

inline int branch(bool is) { return is ? 1 : 2; }

inline bool decide(bool a, bool b, bool c) { return (a && b) || c; }

template <class Number>
bool isLess(Number a, Number b) {
  if (a < b) return true;
  return false;
}

template <bool isConstant>
bool decideWith(bool varies) {
  return varies || isConstant;
}

constexpr int atCompileTime() { return 7; }
static_assert(atCompileTime() == 7);

inline bool negate(bool is) { return !is; }
inline bool nest(bool a, bool b, bool c) { return a && negate(b || c); }

inline int seldom(bool is) {
  if (!is) return 0;
  return 1;
}
