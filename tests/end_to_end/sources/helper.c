long long helper(void) { return 6; }
