long long helper(void);
void zexFunction(long long* answer) { *answer = helper(); }
