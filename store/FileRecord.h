#pragma once
// Random-access record files on channels 1 to 3, and the names of the files.
//
// Failures: a channel outside 1 to 3 or not open is 52, opening an open channel 55, a record
// number below 1 is 63, a record whose length isn't the channel's 59; the system's errors map
// through NumeroDaErrno, and a missing directory is 76.
#include "store/Campi.h"
#include "store/Guasto.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <type_traits>
#include <vector>

// The names of the files, built in this one place. A name is folded to the one spelling that its
// extension (or a shared file's name) has on disk, and when the directory already holds the file
// in another case spelling, as data copied from a case-insensitive disk do, that file is named.
//
// An account's file: PercorsoDati + Trim(CodContoAperto) + estensione. The code is stored back
// trimmed, so that the stem has no blanks at its ends. A stem that ControllaStelo refuses fails
// here, before any file is named.
std::string NomeFileConto(const std::string& estensione);
// Failure 52 for a stem that would lead out of the data directory or make no plain name: one
// holding "/", "..", NUL or a control character, as a code pasted or found in Conti.dat may.
// An empty stem stays in the folder: with no account open the browser reads "<dati>.Opz".
void ControllaStelo(const std::string& stelo);
// A shared file of the data directory: PercorsoDati + nome.
std::string NomeFileDati(const std::string& nome);
// A shared file beside the program: PercorsoProgramma + nome.
std::string NomeFileProgramma(const std::string& nome);

// The folding and the look-up described above, for any path; the primitives pass every name
// through it.
std::string RisolviNome(const std::string& percorso);

// The files of a directory whose names start with `prefisso`, compared without regard to case,
// as full paths in name order; none when the directory is missing.
std::vector<std::string> FileCheIniziano(const std::string& directory,
                                         const std::string& prefisso);

// The files and folders the program makes are private, whatever the umask: they hold bank
// records and a password. Makes the directory and those missing above it, each 0700; what
// exists is taken as it is.
void CreaCartelle(const std::string& percorso);

// Opens for read and write, creating an empty file (0600) when none exists: the program relies
// on it. A name that is a symbolic link is not followed (failure 75), so that a link planted in
// the data directory doesn't redirect a write; a directory on the way may be one.
void ApriRecord(const std::string& nome, int lunghezza, int canale);
void ChiudiRecord(int canale);    // a channel that isn't open is left alone
void ChiudiTutti();               // for the failure paths

// The bytes of records `numero` onwards: `quanti` bytes at (numero - 1) * length. What lies past
// the end of the file reads as zeros. Used by the templates below.
void LeggiByte(unsigned char* byte, std::size_t quanti, long numero, int canale);
// Writes at the same place; past the end the file grows and the gap reads as zeros.
void ScriviByte(const unsigned char* byte, std::size_t quanti, long numero, int canale);
// Failure 52 when the channel isn't open, 59 when its record length isn't `lunghezza`.
void ControllaCanale(int canale, std::size_t lunghezza);

// Clears the record, then reads record `numero` (from 1). Past the end of the file the record
// stays cleared, without failure; a last record cut short gives what is there.
template <class R> void LeggiRecord(R& record, long numero, int canale) {
    record = R{};
    ControllaCanale(canale, R::Lunghezza);
    unsigned char byte[R::Lunghezza];
    LeggiByte(byte, R::Lunghezza, numero, canale);
    Decodifica(record, byte);
}

// Records `da` to `a` into righe[da] to righe[a]: the whole-file loads of the tables go through
// here. They come in through one buffer of some 64 KB, a read for each filling, as
// ScriviRecords writes them: an account of 32767 movements costs 40 reads and no fresh 2.5 MB.
// Failure 9 when `righe` doesn't reach `a`.
template <class R> void LeggiRecords(std::vector<R>& righe, long da, long a, int canale) {
    ControllaCanale(canale, R::Lunghezza);
    if (a < da) return;
    if (da < 0 || static_cast<std::size_t>(a) >= righe.size()) Errore(9);
    constexpr long PerLettura = 65536 / R::Lunghezza;
    std::vector<unsigned char> byte(
        static_cast<std::size_t>(std::min(a - da + 1, PerLettura)) * R::Lunghezza);
    for (long primo = da; primo <= a; primo += PerLettura) {
        const long ultimo = std::min(a, primo + PerLettura - 1);
        LeggiByte(byte.data(), static_cast<std::size_t>(ultimo - primo + 1) * R::Lunghezza,
                  primo, canale);
        for (long n = primo; n <= ultimo; ++n) {
            Decodifica(righe[static_cast<std::size_t>(n)],
                       byte.data() + static_cast<std::size_t>(n - primo) * R::Lunghezza);
        }
    }
}

template <class R> void ScriviRecord(const R& record, long numero, int canale) {
    ControllaCanale(canale, R::Lunghezza);
    unsigned char byte[R::Lunghezza];
    Codifica(record, byte);
    ScriviByte(byte, R::Lunghezza, numero, canale);
}

// `quanti` records as records `numero` onwards: the k-th (from 0) is record(k). They go out
// through one buffer of some 64 KB, a write for each filling: the whole-file rewrites (.Ord at
// each new movement) cost a few dozen writes and no fresh memory.
template <class F> void ScriviRecords(F&& record, std::size_t quanti, long numero, int canale) {
    using R = std::remove_cvref_t<decltype(record(std::size_t{0}))>;
    ControllaCanale(canale, R::Lunghezza);
    constexpr std::size_t PerScrittura = 65536 / R::Lunghezza;
    std::vector<unsigned char> byte(std::min(quanti, PerScrittura) * R::Lunghezza);
    for (std::size_t da = 0; da < quanti; da += PerScrittura) {
        std::size_t fino = std::min(quanti, da + PerScrittura);
        for (std::size_t k = da; k < fino; ++k)
            Codifica(record(k), byte.data() + (k - da) * R::Lunghezza);
        ScriviByte(byte.data(), (fino - da) * R::Lunghezza, numero + static_cast<long>(da),
                   canale);
    }
}

// Opens `nome` on `canale`, runs `lavoro` and closes the channel, also when `lavoro` fails, so
// that a failure reported to the user leaves no channel taken.
template <class F> void ConRecord(const std::string& nome, int lunghezza, int canale, F&& lavoro) {
    ApriRecord(nome, lunghezza, canale);
    try {
        lavoro();
    } catch (...) {
        ChiudiRecord(canale);
        throw;
    }
    ChiudiRecord(canale);
}

// A whole file copied over any file of that name, which is made 0600 when new (a link in its
// place is not followed: 75); a missing source is 53, a missing folder 76. With `suDisco` the copy has reached the disk when this returns.
void CopiaFile(const std::string& da, const std::string& a, bool suDisco = false);
// The names in a directory reach the disk (after new files were made in it).
void SincronizzaDirectory(const std::string& directory);
// Deletes a file; a missing one is 53.
void CancellaFile(const std::string& nome);

// For the tests: the n-th write to a file from now on, records and copies alike, fails as an
// I/O error (57); 0 lets every write through.
void GuastoAllaScrittura(long n);

// A bare 16-bit integer as a record: a counter file holds nothing else.
struct RecIntero {
    static constexpr std::size_t Lunghezza = 2;
    std::int16_t Valore = 0;

    template <class R, class F> static constexpr void Campi(R& r, F&& f) { f(r.Valore); }
};

// A counter file (.MOR, .NRC, .NRF, RecConti.dat, RecCausa.dat): the integer of record 1, on a
// free channel opened and closed here. Missing or empty reads 0 and leaves an empty file.
short LeggiContatore(const std::string& nome);
void ScriviContatore(const std::string& nome, short n);
