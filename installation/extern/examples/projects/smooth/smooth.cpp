// A signal, smoothed by a triangular window; beyond its ends it counts as zero. An extension of several sources,
// with build files for CMake, make and Meson beside it.
//
//     zexrun smooth.zexa64 "[0 0 4 0 0]" 3      [0 1 2 1 0]

#include <zex.h>

#include "window.hpp"

void zexFunction(int nlhs, zxArray* plhs[], int nrhs, const zxArray* prhs[]) {
  if (nrhs != 2 || nlhs > 1) zexFail("smooth:arguments", "Use: y = smooth(x, length). There are %d inputs.", nrhs);
  const double length = zxNumber(prhs[1]);
  if (!(length >= 1 && length <= 1e6)) zexFail("smooth:length", "The length of the window is from 1 to 1000000.");

  const std::vector<double> weights = triangle(static_cast<std::size_t>(length));
  const zxIndex count = zxCountOf(prhs[0]);
  const zxIndex width = static_cast<zxIndex>(weights.size());
  const double* const x = zxReadReals(prhs[0]);
  plhs[0] = zxMake(ZX_REAL, zxRowsOf(prhs[0]), zxColumnsOf(prhs[0]));
  double* const y = zxEditReals(plhs[0]);
  for (zxIndex at = 0; at < count; ++at) {
    for (zxIndex k = 0; k < width; ++k) {
      const zxIndex from = at + k - width / 2;
      if (from >= 0 && from < count) y[at] += weights[static_cast<std::size_t>(k)] * x[from];
    }
  }
}
