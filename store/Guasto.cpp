#include "store/Guasto.h"

#include "store/FileRecord.h"
#include "store/Piattaforma.h"

#include <cerrno>
#include <cmath>
#include <limits>
#include <map>
#include <new>

namespace {
const std::map<int, std::string>& Descrizioni() {
    static const std::map<int, std::string> testi = {
        {5, "Chiamata di routine o argomento non valido"},
        {6, "Overflow"},
        {7, "Memoria esaurita"},
        {9, "Indice non compreso nell'intervallo"},
        {11, "Divisione per zero"},
        {13, "Tipo non corrispondente"},
        {52, "Nome o numero di file non valido"},
        {53, "Impossibile trovare il file"},
        {54, "Modalità del file non valida"},
        {55, "File già aperto"},
        {57, "Errore di I/O sulla periferica"},
        {58, "File già esistente"},
        {59, "Lunghezza del record non valida"},
        {61, "Disco pieno"},
        {62, "Input oltre la fine del file"},
        {63, "Numero di record non valido"},
        {67, "Troppi file"},
        {68, "Periferica non disponibile"},
        {70, "Autorizzazione negata"},
        {71, "Disco non pronto"},
        {75, "Errore di accesso al percorso/file"},
        {76, "Impossibile trovare il percorso"},
        {380, "Valore della proprietà non valido"},
        {482, "Errore della stampante"},
    };
    return testi;
}
} // namespace

ErroreEsecuzione::ErroreEsecuzione(int n) : ErroreEsecuzione(n, DescrizioneErrore(n)) {}

ErroreEsecuzione::ErroreEsecuzione(int n, const std::string& descrizione)
    : std::runtime_error(descrizione), numero(n) {}

std::string DescrizioneErrore(int numero) {
    auto it = Descrizioni().find(numero);
    return it == Descrizioni().end() ? "Errore definito dall'applicazione" : it->second;
}

void Errore(int numero) { throw ErroreEsecuzione(numero); }

int NumeroDaErrno(int codice) {
    switch (codice) {
    case ENOENT: return 53;
    case ENOTDIR: return 76;
    case ENOSPC: case EDQUOT: return 61;
    case EACCES: case EPERM: case EROFS: case ELOOP: return 75;
    case EIO: return 57;
    case EBUSY: return 55;
    case EEXIST: return 58;
    case ENAMETOOLONG: case EINVAL: case EISDIR: return 52;
    case ENXIO: case ENODEV: return 68;
    case ENOMEDIUM: return 71;
    case EMFILE: case ENFILE: return 67;
    default: return 57;
    }
}

bool EseguiEvento(const std::function<void()>& evento) {
    int numero = 0;
    std::string descrizione;
    try {
        evento();
        return true;
    } catch (const ErroreEsecuzione& e) {
        numero = e.numero;
        descrizione = e.what();
    } catch (const std::bad_alloc&) {
        numero = 7;
        descrizione = DescrizioneErrore(7);
    } catch (const std::exception& e) {
        numero = 5;
        descrizione = e.what();
    }
    // A failure abandons the event wherever it was: no file stays open behind it.
    ChiudiTutti();
    Piattaforma().Guasto(numero, descrizione);
    return false;
}

void IgnoraErrori(std::initializer_list<std::function<void()>> passi) {
    for (const auto& passo : passi) {
        try {
            passo();
        } catch (const std::exception&) {
        }
    }
}

void AvvisaErrori(std::initializer_list<std::function<void()>> passi) {
    for (const auto& passo : passi) {
        try {
            passo();
        } catch (const ErroreEsecuzione& e) {
            Piattaforma().MsgBox("Errore numero " + std::to_string(e.numero) + " 0 " + e.what(), "",
                                 Icona::Esclamazione, Pulsanti::OK, 0);
        }
    }
}

double Dividi(double dividendo, double divisore) {
    if (divisore == 0) Errore(11);
    double q = dividendo / divisore;
    if (!std::isfinite(q)) Errore(6);
    return q;
}

short Intero16(double valore) {
    if (!(valore >= -32768.5 && valore < 32767.5)) Errore(6);
    return static_cast<short>(std::nearbyint(valore));
}

int Intero32(double valore) {
    if (!(valore >= -2147483648.5 && valore < 2147483647.5)) Errore(6);
    return static_cast<int>(std::nearbyint(valore));
}
