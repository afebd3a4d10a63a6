#include "store/Cp1252.h"

#include <array>

namespace {
// The characters of the bytes 0x80 to 0x9F; the rest of the code page is Latin-1.
constexpr std::array<char32_t, 32> Alti = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

void AggiungiUtf8(std::string& testo, char32_t c) {
    if (c < 0x80) {
        testo += static_cast<char>(c);
    } else if (c < 0x800) {
        testo += static_cast<char>(0xC0 | (c >> 6));
        testo += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        // Every character of the code page lies in the basic plane.
        testo += static_cast<char>(0xE0 | (c >> 12));
        testo += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        testo += static_cast<char>(0x80 | (c & 0x3F));
    }
}

// Reads one character at `i` and moves past it. An invalid sequence yields -1 and moves on by
// one byte, so that each stray byte becomes one "?".
long LeggiUtf8(std::string_view testo, std::size_t& i) {
    const auto byte = [&](std::size_t k) { return static_cast<unsigned char>(testo[k]); };
    unsigned char primo = byte(i);
    if (primo < 0x80) {
        ++i;
        return primo;
    }
    std::size_t seguito;
    char32_t c;
    char32_t minimo;
    if ((primo & 0xE0) == 0xC0) {
        seguito = 1, c = primo & 0x1F, minimo = 0x80;
    } else if ((primo & 0xF0) == 0xE0) {
        seguito = 2, c = primo & 0x0F, minimo = 0x800;
    } else if ((primo & 0xF8) == 0xF0) {
        seguito = 3, c = primo & 0x07, minimo = 0x10000;
    } else {
        ++i;
        return -1;
    }
    if (i + seguito >= testo.size()) {
        ++i;
        return -1;
    }
    for (std::size_t k = 1; k <= seguito; ++k) {
        if ((byte(i + k) & 0xC0) != 0x80) {
            ++i;
            return -1;
        }
        c = (c << 6) | (byte(i + k) & 0x3F);
    }
    if (c < minimo || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) {
        ++i;
        return -1;
    }
    i += seguito + 1;
    return static_cast<long>(c);
}
} // namespace

char32_t CarattereCp1252(unsigned char byte) {
    return byte >= 0x80 && byte < 0xA0 ? Alti[byte - 0x80] : char32_t{byte};
}

int ByteCp1252(char32_t carattere) {
    if (carattere < 0x80 || (carattere >= 0xA0 && carattere <= 0xFF)) {
        return static_cast<int>(carattere);
    }
    for (std::size_t k = 0; k < Alti.size(); ++k) {
        if (Alti[k] == carattere) return static_cast<int>(0x80 + k);
    }
    return -1;
}

std::string Utf8DaCp1252(const unsigned char* byte, std::size_t quanti) {
    std::string testo;
    testo.reserve(quanti);
    for (std::size_t k = 0; k < quanti; ++k) AggiungiUtf8(testo, CarattereCp1252(byte[k]));
    return testo;
}

void Cp1252DaUtf8(std::string_view testo, unsigned char* byte, std::size_t quanti) {
    std::size_t i = 0;
    std::size_t scritti = 0;
    while (scritti < quanti && i < testo.size()) {
        long c = LeggiUtf8(testo, i);
        int b = c < 0 ? -1 : ByteCp1252(static_cast<char32_t>(c));
        byte[scritti++] = static_cast<unsigned char>(b < 0 ? '?' : b);
    }
    while (scritti < quanti) byte[scritti++] = ' ';
}
