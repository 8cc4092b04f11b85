/*
 * Filters signals, one to a column: y(n) = b(0) x(n) + b(1) x(n-1) + ..., with x = 0 ahead of the first sample.
 *
 *     zex filter.c
 *     zexrun filter.zexa64 "[0.5 0.5]" "[1; 2; 4; 8]"
 */
#include <zex.h>

static void filterColumn(const double* taps, zxIndex tapCount, const double* x, double* y, zxIndex length) {
  zxIndex n;
  zxIndex k;
  for (n = 0; n < length; ++n) {
    double sum = 0;
    for (k = 0; k < tapCount && k <= n; ++k) sum += taps[k] * x[n - k];
    y[n] = sum;
  }
}

void zexFunction(int nlhs, zxArray* plhs[], int nrhs, const zxArray* prhs[]) {
  const double* taps;
  const double* x;
  double* y;
  zxIndex length;
  zxIndex signals;
  zxIndex column;

  if (nrhs != 2 || nlhs > 1) zexFail("filter:arguments", "Use: y = filter(taps, signals). There are %d inputs.", nrhs);
  if (zxCountOf(prhs[0]) == 0) zexFail("filter:taps", "A filter has one tap at least.");
  taps = zxReadReals(prhs[0]);
  x = zxReadReals(prhs[1]);
  length = zxRowsOf(prhs[1]);
  signals = zxColumnsOf(prhs[1]);

  plhs[0] = zxMake(ZX_REAL, length, signals);
  y = zxEditReals(plhs[0]);
  for (column = 0; column < signals; ++column) {
    filterColumn(taps, zxCountOf(prhs[0]), x + column * length, y + column * length, length);
  }
}
