#pragma once
// A colour as the files hold it: one whole number in a double, red in the low byte, then green,
// then blue (the classic desktop's order), so that colori.col keeps its meaning on any machine.
#include <cstdint>

struct Rgb {
    int r = 0, g = 0, b = 0;
};

inline Rgb RgbDi(double colore) {
    auto v = static_cast<std::uint32_t>(static_cast<std::int64_t>(colore) & 0xFFFFFF);
    return {static_cast<int>(v & 0xFF), static_cast<int>((v >> 8) & 0xFF),
            static_cast<int>((v >> 16) & 0xFF)};
}

inline double ValoreColore(Rgb c) {
    return c.r + c.g * 256.0 + c.b * 65536.0;
}
