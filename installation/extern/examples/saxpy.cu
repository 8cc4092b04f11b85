// Adds a scaled matrix to another on the first CUDA device: z = a x + y.
//
//     zex saxpy.cu
//     zexrun saxpy.zexa64 2.5 "[1 2 3]" "[10 20 30]"

#include <zex.h>

namespace {

__global__ void addScaled(zxIndex count, double factor, const double* x, double* sums) {
  const zxIndex index = static_cast<zxIndex>(blockIdx.x) * blockDim.x + threadIdx.x;
  if (index < count) sums[index] += factor * x[index];
}

// Elements in the memory of the device.
class OnDevice {
 public:
  explicit OnDevice(zxIndex count) : size_(static_cast<size_t>(count) * sizeof(double)) {
    check(cudaMalloc(&elements_, size_));
  }
  ~OnDevice() { cudaFree(elements_); }
  OnDevice(const OnDevice&) = delete;
  OnDevice& operator=(const OnDevice&) = delete;

  void take(const double* from) { check(cudaMemcpy(elements_, from, size_, cudaMemcpyHostToDevice)); }
  void give(double* to) const { check(cudaMemcpy(to, elements_, size_, cudaMemcpyDeviceToHost)); }
  double* elements() const { return elements_; }

  static void check(cudaError_t status) {
    if (status != cudaSuccess) {
      zexFail("saxpy:device", "There is no CUDA device to compute on, or it failed: %s.", cudaGetErrorString(status));
    }
  }

 private:
  size_t size_;
  double* elements_ = nullptr;
};

}  // namespace

void zexFunction(int nlhs, zxArray* plhs[], int nrhs, const zxArray* prhs[]) {
  if (nrhs != 3 || nlhs > 1) zexFail("saxpy:arguments", "Use: z = saxpy(a, x, y). There are %d inputs.", nrhs);
  const zxIndex rows = zxRowsOf(prhs[2]);
  const zxIndex columns = zxColumnsOf(prhs[2]);
  if (zxRowsOf(prhs[1]) != rows || zxColumnsOf(prhs[1]) != columns) {
    zexFail("saxpy:sizes", "x and y must be of the same size.");
  }
  const double factor = zxNumber(prhs[0]);
  const double* const x = zxReadReals(prhs[1]);
  const double* const y = zxReadReals(prhs[2]);
  plhs[0] = zxMake(ZX_REAL, rows, columns);
  const zxIndex count = zxCountOf(plhs[0]);
  if (count == 0) return;

  OnDevice scaled(count);
  OnDevice sums(count);
  scaled.take(x);
  sums.take(y);
  const unsigned int threads = 256;
  const unsigned int blocks = static_cast<unsigned int>((count + threads - 1) / threads);
  addScaled<<<blocks, threads>>>(count, factor, scaled.elements(), sums.elements());
  OnDevice::check(cudaGetLastError());
  sums.give(zxEditReals(plhs[0]));
}
