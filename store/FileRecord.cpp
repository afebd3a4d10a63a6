#include "store/FileRecord.h"

#include "store/Stato.h"
#include "store/Testo.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <dirent.h>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <sys/stat.h>
#include <unistd.h>

namespace {
struct Canale {
    int fd = -1;
    std::size_t lunghezza = 0;
};

constexpr int PrimoCanale = 1;
constexpr int UltimoCanale = 3;
std::array<Canale, UltimoCanale + 1> canali;

Canale& CanaleValido(int canale) {
    if (canale < PrimoCanale || canale > UltimoCanale) Errore(52);
    return canali[static_cast<std::size_t>(canale)];
}

Canale& CanaleAperto(int canale) {
    Canale& c = CanaleValido(canale);
    if (c.fd < 0) Errore(52);
    return c;
}

[[noreturn]] void ErroreDiSistema() { Errore(NumeroDaErrno(errno)); }

// Record numbers are 32-bit, as in the classic runtime.
off_t Posizione(const Canale& c, long numero) {
    if (numero < 1 || numero > 2147483647L) Errore(63);
    return static_cast<off_t>(numero - 1) * static_cast<off_t>(c.lunghezza);
}

// The one spelling on disk of each extension and shared file; the system writes them in many.
constexpr std::array<const char*, 15> Estensioni = {
    ".MOV", ".Ord", ".MOR", ".TOT", ".RIP", ".chi", ".CAR", ".NRC",
    ".FOG", ".NRF", ".Iat", ".Ipa", ".Opz", ".Onp", ".spe",
};
constexpr std::array<const char*, 7> NomiCondivisi = {
    "Conti.dat", "RecConti.dat", "Causali.DAT", "RecCausa.dat",
    "Valute.DAT", "Imposta.DAT", "colori.col",
};

bool UgualiSenzaCaso(const std::string& a, const std::string& b) { return UCase(a) == UCase(b); }

std::string NomeCanonico(const std::string& nome) {
    for (const char* condiviso : NomiCondivisi) {
        if (UgualiSenzaCaso(nome, condiviso)) return condiviso;
    }
    for (std::string estensione : Estensioni) {
        if (nome.size() >= estensione.size()) {
            std::size_t stelo = nome.size() - estensione.size();
            if (UgualiSenzaCaso(nome.substr(stelo), estensione)) {
                return nome.substr(0, stelo) + estensione;
            }
        }
    }
    return nome;
}

bool Esiste(const std::string& percorso) {
    struct stat info;
    return lstat(percorso.c_str(), &info) == 0;
}

// The names of a directory, in name order; none when it can't be read.
std::vector<std::string> NomiIn(const std::string& directory) {
    std::vector<std::string> nomi;
    DIR* d = opendir(directory.empty() ? "." : directory.c_str());
    if (!d) return nomi;
    while (const dirent* voce = readdir(d)) {
        std::string nome = voce->d_name;
        if (nome != "." && nome != "..") nomi.push_back(nome);
    }
    closedir(d);
    std::sort(nomi.begin(), nomi.end());
    return nomi;
}

long scrittureAlGuasto = 0;

// Counts one write towards the failure the tests asked for.
void ContaScrittura() {
    if (scrittureAlGuasto > 0 && --scrittureAlGuasto == 0) Errore(57);
}

// pwrite of all the bytes, through the counter of the tests.
void ScriviTutto(int fd, const unsigned char* byte, std::size_t quanti, off_t posizione) {
    ContaScrittura();
    std::size_t scritti = 0;
    while (scritti < quanti) {
        ssize_t n = pwrite(fd, byte + scritti, quanti - scritti,
                           posizione + static_cast<off_t>(scritti));
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) ErroreDiSistema();
        scritti += static_cast<std::size_t>(n);
    }
}

// A new file of mode 0600 whatever the umask; a missing name can only be a missing directory.
int FilePrivato(const std::string& percorso, int accesso) {
    int fd = open(percorso.c_str(), accesso | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (fd < 0 && errno == ENOENT) Errore(76);
    if (fd < 0) ErroreDiSistema();
    if (fchmod(fd, 0600) != 0) {
        int errore = errno;
        close(fd);
        Errore(NumeroDaErrno(errore));
    }
    return fd;
}

int CanaleLibero() {
    for (int canale = PrimoCanale; canale <= UltimoCanale; ++canale) {
        if (canali[static_cast<std::size_t>(canale)].fd < 0) return canale;
    }
    Errore(67);
}
} // namespace

std::string RisolviNome(const std::string& percorso) {
    std::size_t barra = percorso.rfind('/');
    std::string directory = barra == std::string::npos ? "" : percorso.substr(0, barra + 1);
    std::string nome = NomeCanonico(percorso.substr(directory.size()));
    if (nome.empty() || Esiste(directory + nome)) return directory + nome;
    for (const std::string& presente : NomiIn(directory)) {
        if (UgualiSenzaCaso(presente, nome)) return directory + presente;
    }
    return directory + nome;
}

void ControllaStelo(const std::string& stelo) {
    bool controllo = std::any_of(stelo.begin(), stelo.end(), [](char c) {
        auto u = static_cast<unsigned char>(c);
        return u < 32 || u == 127 || c == '/';
    });
    if (controllo || stelo.find("..") != std::string::npos) Errore(52);
}

std::string NomeFileConto(const std::string& estensione) {
    Stato.CodContoAperto = Trim(Stato.CodContoAperto);
    std::string stelo = Trim(Stato.CodContoAperto);
    ControllaStelo(stelo);
    return RisolviNome(Stato.PercorsoDati + stelo + estensione);
}

std::string NomeFileDati(const std::string& nome) {
    return RisolviNome(Stato.PercorsoDati + nome);
}

std::string NomeFileProgramma(const std::string& nome) {
    return RisolviNome(Stato.PercorsoProgramma + nome);
}

std::vector<std::string> FileCheIniziano(const std::string& directory,
                                         const std::string& prefisso) {
    std::string base = directory.empty() || directory.back() == '/' ? directory : directory + "/";
    std::string cercato = UCase(prefisso);
    std::vector<std::string> trovati;
    for (const std::string& nome : NomiIn(directory)) {
        if (UCase(nome).compare(0, cercato.size(), cercato) == 0) trovati.push_back(base + nome);
    }
    return trovati;
}

void CreaCartelle(const std::string& percorso) {
    std::size_t fine = 0;
    while (fine != std::string::npos) {
        fine = percorso.find('/', fine + 1);
        std::string cartella = percorso.substr(0, fine);
        struct stat info;
        if (cartella.empty() || stat(cartella.c_str(), &info) == 0) continue;
        if (mkdir(cartella.c_str(), 0700) != 0 || chmod(cartella.c_str(), 0700) != 0)
            ErroreDiSistema();
    }
}

void ApriRecord(const std::string& nome, int lunghezza, int canale) {
    Canale& c = CanaleValido(canale);
    if (c.fd >= 0) Errore(55);
    if (lunghezza < 1) Errore(59);
    std::string percorso = RisolviNome(nome);
    int fd = open(percorso.c_str(), O_RDWR | O_NOFOLLOW | O_CLOEXEC);
    if (fd < 0 && errno == ENOENT) fd = FilePrivato(percorso, O_RDWR);
    if (fd < 0) ErroreDiSistema();
    c.fd = fd;
    c.lunghezza = static_cast<std::size_t>(lunghezza);
}

void ChiudiRecord(int canale) {
    Canale& c = CanaleValido(canale);
    if (c.fd >= 0) close(c.fd);
    c = Canale{};
}

void ChiudiTutti() {
    for (int canale = PrimoCanale; canale <= UltimoCanale; ++canale) ChiudiRecord(canale);
}

void ControllaCanale(int canale, std::size_t lunghezza) {
    if (CanaleAperto(canale).lunghezza != lunghezza) Errore(59);
}

void LeggiByte(unsigned char* byte, std::size_t quanti, long numero, int canale) {
    const Canale& c = CanaleAperto(canale);
    off_t posizione = Posizione(c, numero);
    std::size_t letti = 0;
    while (letti < quanti) {
        ssize_t n = pread(c.fd, byte + letti, quanti - letti,
                          posizione + static_cast<off_t>(letti));
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) ErroreDiSistema();
        if (n == 0) break;
        letti += static_cast<std::size_t>(n);
    }
    std::fill(byte + letti, byte + quanti, 0);
}

void ScriviByte(const unsigned char* byte, std::size_t quanti, long numero, int canale) {
    const Canale& c = CanaleAperto(canale);
    ScriviTutto(c.fd, byte, quanti, Posizione(c, numero));
}

void GuastoAllaScrittura(long n) { scrittureAlGuasto = n; }

void CopiaFile(const std::string& da, const std::string& a, bool suDisco) {
    int sorgente = open(RisolviNome(da).c_str(), O_RDONLY | O_CLOEXEC);
    if (sorgente < 0) ErroreDiSistema();
    // A file copied over itself stays as it is: the truncation would lose it.
    struct stat origine, arrivo;
    if (fstat(sorgente, &origine) == 0 && stat(RisolviNome(a).c_str(), &arrivo) == 0 &&
        origine.st_dev == arrivo.st_dev && origine.st_ino == arrivo.st_ino) {
        close(sorgente);
        return;
    }
    std::string percorso = RisolviNome(a);
    int copia = open(percorso.c_str(), O_WRONLY | O_TRUNC | O_NOFOLLOW | O_CLOEXEC);
    if (copia < 0 && errno == ENOENT) {
        try {
            copia = FilePrivato(percorso, O_WRONLY);
        } catch (...) {
            close(sorgente);
            throw;
        }
    }
    if (copia < 0) {
        int codice = errno;
        close(sorgente);
        Errore(NumeroDaErrno(codice));
    }
    try {
        unsigned char byte[65536];
        off_t posizione = 0;
        for (;;) {
            ssize_t n = read(sorgente, byte, sizeof byte);
            if (n < 0 && errno == EINTR) continue;
            if (n < 0) ErroreDiSistema();
            if (n == 0) break;
            ScriviTutto(copia, byte, static_cast<std::size_t>(n), posizione);
            posizione += n;
        }
        if (suDisco && fsync(copia) != 0) ErroreDiSistema();
    } catch (...) {
        close(sorgente);
        close(copia);
        throw;
    }
    close(sorgente);
    // A full disk may only tell at the close.
    if (close(copia) != 0) ErroreDiSistema();
}

void SincronizzaDirectory(const std::string& directory) {
    int fd = open(directory.empty() ? "." : directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) ErroreDiSistema();
    int esito = fsync(fd);
    int codice = errno;
    close(fd);
    if (esito != 0) Errore(NumeroDaErrno(codice));
}

void CancellaFile(const std::string& nome) {
    if (unlink(RisolviNome(nome).c_str()) != 0) ErroreDiSistema();
}

short LeggiContatore(const std::string& nome) {
    int canale = CanaleLibero();
    RecIntero contatore;
    ConRecord(nome, RecIntero::Lunghezza, canale, [&] { LeggiRecord(contatore, 1, canale); });
    return contatore.Valore;
}

void ScriviContatore(const std::string& nome, short n) {
    int canale = CanaleLibero();
    ConRecord(nome, RecIntero::Lunghezza, canale,
              [&] { ScriviRecord(RecIntero{n}, 1, canale); });
}
