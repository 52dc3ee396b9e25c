// What a seed decides: the same seed decides the same again.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <random>
#include <type_traits>

namespace lumo::test {

/// One thread's own. The standard's distributions differ from library to library; these do not.
class Chance final {
public:
    explicit Chance(std::uint64_t seed) : m_engine(seed) {}

    /// From `least` to `most`, both of them among it.
    template <typename Number = int>
    Number between(std::type_identity_t<Number> least, std::type_identity_t<Number> most) {
        const auto choices = static_cast<std::uint64_t>(most - least) + 1;
        return static_cast<Number>(least + static_cast<Number>(m_engine() % choices));
    }
    bool oneIn(int times) { return between(1, times) == 1; }

    /// One of a list that is not empty. Valid as long as the list.
    template <typename List>
    const auto& of(const List& list) {
        return list[between<std::size_t>(0, std::size(list) - 1)];
    }

    std::uint64_t seed() { return m_engine(); }

private:
    std::mt19937_64 m_engine;
};

}  // namespace lumo::test
