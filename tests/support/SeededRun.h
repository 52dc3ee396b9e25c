// How long a random run lasts, and the seed that repeats its choices.
#pragma once

#include <charconv>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <span>
#include <string_view>

namespace lumo::test {

struct SeededRun {
    std::chrono::seconds length{5};
    std::uint64_t seed = 0;
};

/// Reads `[--seconds N] [--seed N]` and prints the seed; a run that is given none makes its own. Any other argument
/// ends the process with 2.
[[nodiscard]] inline SeededRun readSeededRun(std::span<char* const> arguments) {
    const auto endWithUsage = [&] {
        std::fprintf(stderr, "Usage: %s [--seconds N] [--seed N]\n", arguments[0]);
        std::exit(2);
    };
    SeededRun run;
    std::random_device entropy;
    run.seed = entropy();
    if (arguments.size() % 2 == 0) endWithUsage();
    for (std::size_t at = 1; at < arguments.size(); at += 2) {
        const std::string_view name = arguments[at];
        const std::string_view text = arguments[at + 1];
        std::uint64_t number = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
        if (error != std::errc() || end != text.data() + text.size()) endWithUsage();
        if (name == "--seconds") {
            run.length = std::chrono::seconds(number);
        } else if (name == "--seed") {
            run.seed = number;
        } else {
            endWithUsage();
        }
    }
    std::printf("seed %llu, %lld seconds\n", static_cast<unsigned long long>(run.seed),
                static_cast<long long>(run.length.count()));
    std::fflush(stdout);
    return run;
}

}  // namespace lumo::test
