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
#include <cstring>
#include <string>
#include <string_view>
#include <type_traits>

// A text of fixed width: always exactly N characters, held as UTF-8. Assigning copies the text
// left-justified, cutting a longer one and padding a shorter one with blanks; comparisons see
// the whole padded text, so whoever compares trims first.
//
// The bytes live in the field itself when they fit its room, N bytes or 8 at least: always for
// plain ASCII, the text of nearly every field. A longer UTF-8 text goes to a block of its own,
// whose address takes the room. A table of records is then one compact block, filled and copied
// without a string for every text, which is what the load of an account of 32767 movements
// mostly did.
template <std::size_t N> struct Fisso {
    constexpr Fisso() {
        for (std::size_t k = 0; k < N; ++k) byte_[k] = ' ';
    }
    Fisso(const std::string& s) { Assegna(s); }
    Fisso(const char* s) { Assegna(s); }
    template <std::size_t M> explicit Fisso(const Fisso<M>& altro) { Assegna(altro.Vista()); }
    Fisso(const Fisso& altro) { Copia(altro); }
    constexpr ~Fisso() { Libera(); }

    Fisso& operator=(const Fisso& altro) {
        if (this != &altro) {
            Libera();
            Copia(altro);
        }
        return *this;
    }
    Fisso& operator=(const std::string& s) {
        Assegna(s);
        return *this;
    }
    Fisso& operator=(const char* s) {
        Assegna(s);
        return *this;
    }
    template <std::size_t M> Fisso& operator=(const Fisso<M>& altro) {
        Assegna(altro.Vista());
        return *this;
    }

    operator std::string() const { return std::string(Vista()); }
    operator std::string_view() const { return Vista(); }
    std::string Testo() const { return std::string(Vista()); }
    // The text without a copy, valid while the field is unchanged.
    std::string_view Vista() const {
        return {lunghezza_ <= Stanza ? byte_ : Blocco(), lunghezza_};
    }

    friend bool operator==(const Fisso& a, const Fisso& b) { return a.Vista() == b.Vista(); }
    friend bool operator==(const Fisso& a, const std::string& b) { return a.Vista() == b; }
    friend bool operator==(const Fisso& a, const char* b) { return a.Vista() == b; }

    // A never-written field holds zero bytes; they read as blanks, so that every reader meets
    // one form of "empty" and the record writes back blank-padded.
    void Decodifica(const unsigned char* byte) {
        if (AsciiSenzaZeri(byte)) {
            Libera();
            std::memcpy(byte_, byte, N);
            lunghezza_ = N;
            return;
        }
        unsigned char letti[N];
        unsigned char bitAlti = 0;
        for (std::size_t k = 0; k < N; ++k) {
            letti[k] = byte[k] == 0 ? ' ' : byte[k];
            bitAlti |= byte[k];
        }
        if (bitAlti < 0x80) {
            Libera();
            std::memcpy(byte_, letti, N);
            lunghezza_ = N;
        } else {
            Imposta(Utf8DaCp1252(letti, N));
        }
    }
    void Codifica(unsigned char* byte) const {
        // N bytes of ASCII are N characters that the code page holds as they are.
        if (lunghezza_ == N && SoloAscii(Vista())) std::memcpy(byte, byte_, N);
        else Cp1252DaUtf8(Vista(), byte, N);
    }

private:
    static constexpr std::size_t Stanza = N < sizeof(char*) ? sizeof(char*) : N;

    // Giustifica's cut and padding; on plain ASCII every byte is a character, and the cut
    // needs no count.
    void Assegna(std::string_view s) {
        std::string_view testa = s.substr(0, N);
        if (SoloAscii(testa)) {
            Libera();
            std::memcpy(byte_, testa.data(), testa.size());
            std::memset(byte_ + testa.size(), ' ', N - testa.size());
            lunghezza_ = N;
            return;
        }
        Imposta(Giustifica(std::string(s), static_cast<int>(N)));
    }
    // Eight bytes at a time: a high bit marks a byte above 0x7F, and in (b - 1) | b also a
    // byte 0, which is the only one to borrow from the next.
    static constexpr std::uint64_t Uni = 0x0101010101010101u, Alti = 0x8080808080808080u;
    static bool SoloAscii(std::string_view s) {
        std::uint64_t bit = 0;
        std::size_t k = 0;
        for (std::uint64_t x; k + 8 <= s.size(); k += 8) {
            std::memcpy(&x, s.data() + k, 8);
            bit |= x;
        }
        for (; k < s.size(); ++k) bit |= static_cast<unsigned char>(s[k]);
        return (bit & Alti) == 0;
    }
    static bool AsciiSenzaZeri(const unsigned char* byte) {
        std::uint64_t bit = 0;
        std::size_t k = 0;
        for (std::uint64_t x; k + 8 <= N; k += 8) {
            std::memcpy(&x, byte + k, 8);
            bit |= (x - Uni) | x;
        }
        for (; k < N; ++k) bit |= static_cast<unsigned char>((byte[k] - 1) | byte[k]);
        return (bit & Alti) == 0;
    }

    // The text as it stands, in the room or in a block of its own. It is copied before the
    // old block goes, as it may lie there.
    void Imposta(std::string_view testo) {
        if (testo.size() > Stanza) {
            char* blocco = new char[testo.size()];
            std::memcpy(blocco, testo.data(), testo.size());
            Libera();
            std::memcpy(byte_, &blocco, sizeof blocco);
        } else {
            char copia[Stanza];
            std::memcpy(copia, testo.data(), testo.size());
            Libera();
            std::memcpy(byte_, copia, testo.size());
        }
        lunghezza_ = static_cast<TipoLunghezza>(testo.size());
    }
    void Copia(const Fisso& altro) {
        if (altro.lunghezza_ > Stanza) {
            Imposta(altro.Vista());
            return;
        }
        std::memcpy(byte_, altro.byte_, Stanza);
        lunghezza_ = altro.lunghezza_;
    }
    constexpr void Libera() {
        if (lunghezza_ > Stanza) delete[] Blocco();
        lunghezza_ = N;
    }
    char* Blocco() const {
        char* blocco;
        std::memcpy(&blocco, byte_, sizeof blocco);
        return blocco;
    }

    using TipoLunghezza = std::conditional_t<(4 * N < 256), std::uint8_t, std::uint16_t>;
    char byte_[Stanza] = {};
    TipoLunghezza lunghezza_ = N;
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
