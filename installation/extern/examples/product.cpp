// The product of two real matrices.
//
//     zex product.cpp
//     zexrun product.zexa64 "[1 2; 3 4]" "[5; 6]"

#include <zex.h>

#include <algorithm>

namespace {

// A matrix as the environment keeps it: column after column.
struct Matrix {
  explicit Matrix(const zxArray* array)
      : rows(zxRowsOf(array)), columns(zxColumnsOf(array)), elements(zxReadReals(array)) {}

  const zxIndex rows;
  const zxIndex columns;
  const double* const elements;
};

// Goes down the columns of both, a few of the inner ones at a time, so that these stay in the cache.
void multiply(const Matrix& left, const Matrix& right, double* product) {
  const zxIndex block = 64;
  for (zxIndex first = 0; first < left.columns; first += block) {
    const zxIndex last = std::min(first + block, left.columns);
    for (zxIndex column = 0; column < right.columns; ++column) {
      double* const sums = product + column * left.rows;
      for (zxIndex inner = first; inner < last; ++inner) {
        const double factor = right.elements[inner + column * right.rows];
        const double* const terms = left.elements + inner * left.rows;
        for (zxIndex row = 0; row < left.rows; ++row) sums[row] += terms[row] * factor;
      }
    }
  }
}

}  // namespace

void zexFunction(int nlhs, zxArray* plhs[], int nrhs, const zxArray* prhs[]) {
  if (nrhs != 2 || nlhs > 1) zexFail("product:arguments", "Use: c = product(a, b). There are %d inputs.", nrhs);
  const Matrix left(prhs[0]);
  const Matrix right(prhs[1]);
  if (left.columns != right.rows) {
    zexFail("product:sizes", "A matrix of %lld columns cannot be multiplied by one of %lld rows.",
            static_cast<long long>(left.columns), static_cast<long long>(right.rows));
  }
  plhs[0] = zxMake(ZX_REAL, left.rows, right.columns);
  multiply(left, right, zxEditReals(plhs[0]));
}
