// Compile-time strings: every message a wrapper can raise is assembled here, by the
// compiler, from the row's Python name, argument position and declared type spelling.
#pragma once
#include <cstddef>

namespace wrap {

template <std::size_t N>
struct Text {
    char v[N]{};
    int handle = -1;  // a spelling of an opaque handle names its descriptor here
    constexpr Text() = default;
    constexpr Text(const char (&s)[N]) {
        for (std::size_t i = 0; i < N; ++i) v[i] = s[i];
    }
    static constexpr std::size_t length = N - 1;
    constexpr bool empty() const { return N == 1; }
};

template <std::size_t... N>
constexpr auto cat(const Text<N> &...parts) {
    Text<(N + ... + 1) - sizeof...(N)> out;
    std::size_t at = 0;
    ((([&] {
         for (std::size_t i = 0; i + 1 < N; ++i) out.v[at++] = parts.v[i];
     })()),
     ...);
    out.v[at] = 0;
    return out;
}

template <unsigned I>
constexpr auto number() {
    if constexpr (I < 10) {
        return Text<2>({char('0' + I), 0});
    } else {
        return cat(number<I / 10>(), number<I % 10>());
    }
}

// Joins the texts with a separator: join<",">(a, b, c) -> "a,b,c".
template <Text Sep, std::size_t... N>
constexpr auto join(const Text<N> &...parts) {
    if constexpr (sizeof...(N) == 0) {
        return Text<1>{};
    } else {
        constexpr std::size_t total = (N + ... + 0) - sizeof...(N) + (sizeof...(N) - 1) * Sep.length + 1;
        Text<total> out;
        std::size_t at = 0, k = 0;
        ((([&] {
             if (k++) {
                 for (std::size_t i = 0; i < Sep.length; ++i) out.v[at++] = Sep.v[i];
             }
             for (std::size_t i = 0; i + 1 < N; ++i) out.v[at++] = parts.v[i];
         })()),
         ...);
        out.v[at] = 0;
        return out;
    }
}

// A compile-time text given static storage, so its address can be handed out.
template <Text S>
struct Static {
    static constexpr auto value = S;
    static constexpr const char *c_str() { return value.v; }
};

}  // namespace wrap
