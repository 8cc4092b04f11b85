// Adds a scaled vector to another on the first CUDA device and checks the result. Build it with:  zex saxpy.cu

#include <cmath>
#include <cstdio>
#include <vector>

namespace {

constexpr int count = 1 << 20;
constexpr float scale = 2.5f;

__global__ void saxpy(int n, float a, const float* x, float* y) {
  const int i = blockIdx.x * blockDim.x + threadIdx.x;
  if (i < n) y[i] = a * x[i] + y[i];
}

cudaError_t saxpyOnDevice(const std::vector<float>& x, std::vector<float>& y) {
  const size_t size = x.size() * sizeof(float);
  float* deviceX = nullptr;
  float* deviceY = nullptr;
  cudaError_t status = cudaMalloc(&deviceX, size);
  if (status == cudaSuccess) status = cudaMalloc(&deviceY, size);
  if (status == cudaSuccess) status = cudaMemcpy(deviceX, x.data(), size, cudaMemcpyHostToDevice);
  if (status == cudaSuccess) status = cudaMemcpy(deviceY, y.data(), size, cudaMemcpyHostToDevice);
  if (status == cudaSuccess) {
    saxpy<<<(count + 255) / 256, 256>>>(count, scale, deviceX, deviceY);
    status = cudaGetLastError();
  }
  if (status == cudaSuccess) status = cudaMemcpy(y.data(), deviceY, size, cudaMemcpyDeviceToHost);
  cudaFree(deviceX);
  cudaFree(deviceY);
  return status;
}

}  // namespace

// The entry point that a loader calls.
extern "C" void zexFunction() {
  std::vector<float> x(count);
  std::vector<float> y(count);
  std::vector<float> expected(count);
  for (int i = 0; i < count; ++i) {
    x[i] = static_cast<float>(i % 1000);
    y[i] = 1.0f;
    expected[i] = scale * x[i] + y[i];
  }

  const cudaError_t status = saxpyOnDevice(x, y);
  if (status != cudaSuccess) {
    std::printf("The device could not be used: %s.\n", cudaGetErrorString(status));
    std::fflush(stdout);
    return;
  }
  float worst = 0;
  for (int i = 0; i < count; ++i) worst = std::fmax(worst, std::fabs(y[i] - expected[i]));
  std::printf("%d sums computed on the device; the largest error is %g.\n", count, static_cast<double>(worst));
  std::fflush(stdout);
}
