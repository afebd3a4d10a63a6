#pragma once
// Run-time failures. A failure carries the classic number and its Italian description; one
// top-level handler reports it and abandons the user event that raised it.
#include <functional>
#include <initializer_list>
#include <stdexcept>
#include <string>

struct ErroreEsecuzione : std::runtime_error {
    int numero;
    explicit ErroreEsecuzione(int numero);
    ErroreEsecuzione(int numero, const std::string& descrizione);
};

// The Italian description of a classic failure number ("" for an unknown one).
std::string DescrizioneErrore(int numero);

// Raises the failure of that number.
[[noreturn]] void Errore(int numero);

// The failure number of a system error (errno): no such file 53, no such directory 76,
// disk full 61, permission 75 (and a symbolic link not followed), I/O error 57, and so on.
int NumeroDaErrno(int codice);

// A plain operation: runs one user event; a failure shows the box "Errore" with its number and
// description through the platform, and the program goes on. Returns false after a failure.
bool EseguiEvento(const std::function<void()>& evento);

// An operation with failures ignored: each step runs on its own, a failing one is skipped
// without a message and the next one runs.
void IgnoraErrori(std::initializer_list<std::function<void()>> passi);
// An operation that catches its failures: a failing step shows "Errore numero " + number + " " +
// line + " " + description, the line being 0 as no statement is numbered, and the next one runs.
void AvvisaErrori(std::initializer_list<std::function<void()>> passi);

// Arithmetic that fails as the classic runtime does instead of giving inf or wrapping.
double Dividi(double dividendo, double divisore);    // 11 on a zero divisor
short Intero16(double valore);                        // 6 outside -32768..32767, rounds half even
int Intero32(double valore);                          // 6 outside the 32-bit range
