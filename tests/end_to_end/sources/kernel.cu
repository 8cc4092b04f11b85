__global__ void kernel(int* number) { *number = 8; }
extern "C" long long helper() { return sizeof(&kernel); }
