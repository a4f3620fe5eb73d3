// What a disabled statement takes from the heap.
#include <test-folder.h>

#include <atomic>
#include <cstdlib>
#include <new>

#include "log/log-statement.h"

namespace {

std::atomic<long> allocations{0};

}  // namespace

// Not inlined, since GCC would then see malloc meet delete at the call and take it for a mistake.
[[gnu::noinline]] void* operator new(std::size_t size) {
    ++allocations;
    if (void* const block = std::malloc(size)) {
        return block;
    }
    throw std::bad_alloc();
}

[[gnu::noinline]] void operator delete(void* block) noexcept {
    std::free(block);
}

[[gnu::noinline]] void operator delete(void* block, std::size_t /*size*/) noexcept {
    std::free(block);
}

namespace {

class LogAllocationTest : public FolderTest {};

TEST_F(LogAllocationTest, ADisabledStatementTakesNothing) {
    Write(At("levels"), "extractor_debug=4\nservice_debug=4\n");
    ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, At("launcher.log"), At("levels"), 50, Logger::SCOPE_THREAD), 0);
    // The count itself works.
    const long at_first = allocations;
    std::string(100, 'x').shrink_to_fit();
    ASSERT_GT(allocations, at_first);

    const long before = allocations;
    KQ_LOG_DEBUG("extractor_debug", "text\n");  // 15 characters, the longest name
    KQ_LOG_INFO("launcher_debug", "%s\n", std::string(100, 'x').c_str());
    EXPECT_EQ(allocations, before);
}

}  // namespace
