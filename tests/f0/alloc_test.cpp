// Counts every allocation of the program, to show that tracking a steady stream allocates nothing per frame.
#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>

#include "F0TestSupport.h"

static std::atomic<long> allocations{0};
// Out of line, so that the compiler does not pair a visible malloc in operator new with free here.
[[gnu::noinline]] static void release(void* p) noexcept { std::free(p); }

void* operator new(std::size_t size) {
    ++allocations;
    if (void* p = std::malloc(size ? size : 1)) return p;
    throw std::bad_alloc();
}
void* operator new[](std::size_t size) { return operator new(size); }
void operator delete(void* p) noexcept { release(p); }
void operator delete[](void* p) noexcept { release(p); }
void operator delete(void* p, std::size_t) noexcept { release(p); }
void operator delete[](void* p, std::size_t) noexcept { release(p); }

TEST(F0Allocation, FullBuffersAfterTheFirstAllocateNothing) {
    const std::vector<float> samples = Glide{22050, 90.0, 350.0, 10.0}.samples();
    auto t = systemTracker(22050);
    const auto process = [&](int b) {
        ASSERT_EQ(f0Process(t.get(), samples.data() + b * t->buffStep, t->buffSize), 1);
        for (int i = 0; i < f0NumOutput(t.get()); ++i) EXPECT_GE(f0GetOutput(t.get(), i).f0, 0.0f);
    };
    process(0);  // the first buffer sizes the kernels' working stores
    const long before = allocations;
    int released = 0;
    for (int b = 1; (b + 1) * t->buffStep + t->buffSize <= static_cast<int>(samples.size()); ++b) {
        process(b);
        released += f0NumOutput(t.get());
    }
    EXPECT_EQ(allocations - before, 0);
    EXPECT_GT(released, 600);
}
