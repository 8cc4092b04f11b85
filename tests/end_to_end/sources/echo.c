#include <stdio.h>
#include <zex.h>

void zexFunction(int nlhs, zxArray* plhs[], int nrhs, const zxArray* prhs[]) {
  int i;
  printf("%d ", nrhs);
  zexPrintf("inputs (\303\251)\n");
  for (i = 0; i < nrhs && i < (nlhs > 1 ? nlhs : 1); ++i) plhs[i] = zxCopy(prhs[i]);
}
