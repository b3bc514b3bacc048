#include "tests/fuzz/CurrentInput.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <sanitizer/common_interface_defs.h>
#include <string_view>
#include <unistd.h>

// The sanitizers look for these names.
extern "C" const char* __asan_default_options();
extern "C" const char* __ubsan_default_options();

// A failed assertion of the standard library aborts. What is kept of freed memory and of the roads to allocations is
// little, for speed; what an input may take of memory is limited.
const char* __asan_default_options()
{
    return "handle_abort=1:quarantine_size_mb=16:malloc_context_size=3:max_allocation_size_mb=512:hard_rss_limit_mb="
           "2048";
}

const char* __ubsan_default_options()
{
    return "print_stacktrace=1";
}

namespace
{
// Far beyond what any test case takes.
constexpr unsigned kSecondsOfACase = 300;

void Write(int file, std::string_view bytes)
{
    while (!bytes.empty())
    {
        const ssize_t written = write(file, bytes.data(), bytes.size());
        if (written <= 0)
            return;
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
}

// Without the C library's streams: they take memory, and the heap may be broken.
void KeepInputOfTheEnd()
{
    const FuzzInput& input = CurrentInput();
    if (input.bytes.data() == nullptr)
        return; // it ends between two test cases
    char path[200] = {};
    std::snprintf(path, sizeof path, "fuzz/%s-%u-%u.bin", input.kind, input.seed, input.number);
    const int kept = open(path, O_WRONLY | O_CREAT | O_TRUNC, 0644);
    Write(kept, input.bytes);
    close(kept);
    char text[500] = {};
    std::snprintf(text, sizeof text,
                  "Ended by input %u of seed %u, kept in %s; again: ./test.sh --arch native-asan --seed %u --filter "
                  "'*%s*/%u'\n",
                  input.number, input.seed, path, input.seed, input.kind, input.seed);
    Write(STDERR_FILENO, text);
}

void EndHungProgram(int)
{
    KeepInputOfTheEnd();
    _exit(124);
}

class HangGuard : public testing::EmptyTestEventListener
{
    void OnTestStart(const testing::TestInfo&) override { alarm(kSecondsOfACase); }
    void OnTestEnd(const testing::TestInfo&) override
    {
        alarm(0);
        CurrentInput() = {}; // its bytes have gone
    }
};
} // namespace

int main(int argc, char** argv)
{
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    std::filesystem::create_directories("fuzz");
    __sanitizer_set_death_callback(KeepInputOfTheEnd);
    std::signal(SIGALRM, EndHungProgram);
    testing::InitGoogleTest(&argc, argv);
    testing::UnitTest::GetInstance()->listeners().Append(new HangGuard);
    return RUN_ALL_TESTS();
}
