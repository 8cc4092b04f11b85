void zexFunction(long long* answer) {
  *answer = 0;
#ifdef __OPTIMIZE__
  *answer += 1;
#endif
#ifdef NDEBUG
  *answer += 10;
#endif
}
