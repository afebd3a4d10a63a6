#pragma once
// The fields of the packed records and their codec. A record lists its fields once, in disk
// order, through its static `Campi`; the same list serves reading and writing, and its widths
// must add up to the record's `Lunghezza`. Numbers are little-endian, byte by byte, whatever the
// host; texts are Windows-1252, one byte a character, blank-padded, without terminator.
#include "store/Cp1252.h"
#include "store/Testo.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <string>

// A text of fixed width: always exactly N characters, held as UTF-8. Assigning copies the text
// left-justified, cutting a longer one and padding a shorter one with blanks; comparisons see
// the whole padded text, so whoever compares trims first.
template <std::size_t N> struct Fisso {
    constexpr Fisso() : testo(N, ' ') {}
    Fisso(const std::string& s) : testo(Giustifica(s, static_cast<int>(N))) {}
    Fisso(const char* s) : Fisso(std::string(s)) {}
    template <std::size_t M> explicit Fisso(const Fisso<M>& altro) : Fisso(altro.Testo()) {}

    Fisso& operator=(const std::string& s) {
        testo = Giustifica(s, static_cast<int>(N));
        return *this;
    }
    Fisso& operator=(const char* s) { return *this = std::string(s); }
    template <std::size_t M> Fisso& operator=(const Fisso<M>& altro) {
        return *this = altro.Testo();
    }

    operator const std::string&() const { return testo; }
    const std::string& Testo() const { return testo; }

    friend bool operator==(const Fisso& a, const Fisso& b) { return a.testo == b.testo; }
    friend bool operator==(const Fisso& a, const std::string& b) { return a.testo == b; }
    friend bool operator==(const Fisso& a, const char* b) { return a.testo == b; }

    // A never-written field holds zero bytes; they read as blanks, so that every reader meets
    // one form of "empty" and the record writes back blank-padded.
    void Decodifica(const unsigned char* byte) {
        unsigned char letti[N];
        for (std::size_t k = 0; k < N; ++k) letti[k] = byte[k] == 0 ? ' ' : byte[k];
        testo = Utf8DaCp1252(letti, N);
    }
    void Codifica(unsigned char* byte) const { Cp1252DaUtf8(testo, byte, N); }

private:
    std::string testo;
};

template <std::size_t N> constexpr std::size_t LarghezzaCampo(const Fisso<N>&) { return N; }
constexpr std::size_t LarghezzaCampo(const std::int16_t&) { return 2; }
constexpr std::size_t LarghezzaCampo(const std::int32_t&) { return 4; }
constexpr std::size_t LarghezzaCampo(const float&) { return 4; }
constexpr std::size_t LarghezzaCampo(const double&) { return 8; }

// The bits of a number field and back, in the unsigned type of its width.
template <class T> struct BitCampo;
template <> struct BitCampo<std::int16_t> { using Tipo = std::uint16_t; };
template <> struct BitCampo<std::int32_t> { using Tipo = std::uint32_t; };
template <> struct BitCampo<float> { using Tipo = std::uint32_t; };
template <> struct BitCampo<double> { using Tipo = std::uint64_t; };

template <class T> void DecodificaCampo(T& campo, const unsigned char* byte) {
    using Bit = typename BitCampo<T>::Tipo;
    Bit bit = 0;
    for (std::size_t k = sizeof(Bit); k-- > 0;) bit = static_cast<Bit>(bit << 8 | byte[k]);
    campo = std::bit_cast<T>(bit);
}
template <std::size_t N> void DecodificaCampo(Fisso<N>& campo, const unsigned char* byte) {
    campo.Decodifica(byte);
}

template <class T> void CodificaCampo(const T& campo, unsigned char* byte) {
    using Bit = typename BitCampo<T>::Tipo;
    auto bit = std::bit_cast<Bit>(campo);
    for (std::size_t k = 0; k < sizeof(Bit); ++k, bit = static_cast<Bit>(bit >> 8)) {
        byte[k] = static_cast<unsigned char>(bit & 0xFF);
    }
}
template <std::size_t N> void CodificaCampo(const Fisso<N>& campo, unsigned char* byte) {
    campo.Codifica(byte);
}

// The sum of the widths that a record lists, computed at compile time.
template <class R> constexpr std::size_t LarghezzaCampi() {
    R record{};
    std::size_t totale = 0;
    R::Campi(record, [&totale](const auto& campo) { totale += LarghezzaCampo(campo); });
    return totale;
}

// Reads a whole record from its `R::Lunghezza` bytes.
template <class R> void Decodifica(R& record, const unsigned char* byte) {
    static_assert(LarghezzaCampi<R>() == R::Lunghezza, "the fields don't fill the record");
    R::Campi(record, [&byte](auto& campo) {
        DecodificaCampo(campo, byte);
        byte += LarghezzaCampo(campo);
    });
}

// Writes a whole record into its `R::Lunghezza` bytes.
template <class R> void Codifica(const R& record, unsigned char* byte) {
    static_assert(LarghezzaCampi<R>() == R::Lunghezza, "the fields don't fill the record");
    R::Campi(record, [&byte](const auto& campo) {
        CodificaCampo(campo, byte);
        byte += LarghezzaCampo(campo);
    });
}
