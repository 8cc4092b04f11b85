/*
 * Counts the primes below a bound with a sieve. Build it with:  zex primes.c
 * Another bound:  zex -DBOUND=1000 primes.c
 */
#include <stdio.h>
#include <stdlib.h>

#ifndef BOUND
#define BOUND 1000000
#endif

static long countPrimes(long bound) {
  char* composite = calloc((size_t)bound, 1);
  long count = 0;
  long candidate;

  if (composite == NULL) return -1;
  for (candidate = 2; candidate < bound; ++candidate) {
    long multiple;
    if (composite[candidate]) continue;
    ++count;
    for (multiple = 2 * candidate; multiple < bound; multiple += candidate) composite[multiple] = 1;
  }
  free(composite);
  return count;
}

/* The entry point that a loader calls. */
void zexFunction(void) {
  const long count = countPrimes(BOUND);
  if (count < 0) {
    printf("There is not enough memory for a bound of %ld.\n", (long)BOUND);
  } else {
    printf("There are %ld primes below %ld.\n", count, (long)BOUND);
  }
  fflush(stdout);
}
