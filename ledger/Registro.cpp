#include "ledger/Registro.h"

#include "cheques/ElenchiAssegni.h"
#include "shell/Applicazione.h"
#include "store/Date.h"
#include "store/FileRecord.h"
#include "store/Formato.h"
#include "store/Stato.h"
#include "store/Testo.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

namespace {
// The date number as a whole number, as most comparisons of the register take it.
int NumeroIntero(std::string_view data) { return Intero32(NumeroData(data)); }

// The descriptions of the causali as the list shows them, their first 20 characters, each
// taken once for a whole refill rather than once a line. The search reads the causali in the
// same order as a plain scan, from 1, and no further than the first with the code.
struct DescrizioniInElenco {
    std::vector<std::pair<Fisso<5>, std::string>> lette;    // causali 1 to lette.size()

    // Codes of five plain characters, nearly all of them, compare in one move.
    static bool Uguali(const Fisso<5>& a, const Fisso<5>& b) {
        const std::string_view x = a.Vista(), y = b.Vista();
        if (x.size() != 5 || y.size() != 5) return x == y;
        return std::memcmp(x.data(), y.data(), 5) == 0;
    }

    // That of the first causale with the movement's code, or nothing when no causale has it.
    std::string_view Di(const Fisso<5>& codice) {
        for (const auto& [codiceCausale, descrizione] : lette)
            if (Uguali(codiceCausale, codice)) return descrizione;
        for (long j = static_cast<long>(lette.size()) + 1; j <= Stato.NumCausali; ++j) {
            const RecCausale& causale = Stato.Causali[j];
            lette.emplace_back(causale.CodCausale, Left(causale.DescCausale, 20));
            if (lette.back().first == codice) return lette.back().second;
        }
        return {};
    }
};

// The amounts of the lists as Format shows them with the pattern of the amounts. With the
// program's own patterns, "#,###,###,##0" with 0 to 4 decimals, an amount below 10^9 within a
// millionth of a whole number of its smallest units is written straight from that number: the
// product's rounding (below 10^-3 of a unit) and Format's own rounding to 15 digits (half of
// 10^-6 of the amount, 5 * 10^-3 of a unit) together stay far from the half that would round
// it to another. Anything else goes through Format.
struct ImportiInElenco {
    int decimali = -1;    // -1: a pattern of another kind

    ImportiInElenco() {
        for (int d = 0; d <= 4; ++d)
            if (Stato.FormatoImporti == FormatoImportiPerDecimali(d)) decimali = d;
    }

    std::string_view Testo(double importo, char (&testo)[40], std::string& generale) const {
        constexpr double Scala[] = {1, 10, 100, 1000, 10000};
        const double assoluto = std::fabs(importo);
        const double unita = decimali < 0 ? 0 : assoluto * Scala[decimali];
        const double intero = std::nearbyint(unita);
        if (decimali < 0 || !(assoluto < 1e9) || std::fabs(unita - intero) >= 1e-6) {
            generale = Format(importo, Stato.FormatoImporti);
            return generale;
        }
        // From the last digit back: the decimals, then at least one integer digit, a point
        // before each group of three.
        auto n = static_cast<std::uint64_t>(intero);
        char* const fine = testo + sizeof testo;
        char* p = fine;
        for (int d = 0; d < decimali; ++d, n /= 10) *--p = static_cast<char>('0' + n % 10);
        if (decimali > 0) *--p = ',';
        for (int gruppo = 0;; n /= 10) {
            if (gruppo++ == 3) {
                *--p = '.';
                gruppo = 1;
            }
            *--p = static_cast<char>('0' + n % 10);
            if (n < 10) break;
        }
        if (importo < 0) *--p = '-';
        return {p, static_cast<std::size_t>(fine - p)};
    }
};

// The characters of a text: plain ASCII has one a byte.
int Caratteri(std::string_view testo) {
    unsigned char bitAlti = 0;
    for (char c : testo) bitAlti |= static_cast<unsigned char>(c);
    return bitAlti < 0x80 ? static_cast<int>(testo.size()) : Len(std::string(testo));
}

char* Copia(char* uscita, std::string_view testo) {
    // An empty view may have no bytes at all to copy from.
    if (!testo.empty()) std::memcpy(uscita, testo.data(), testo.size());
    return uscita + testo.size();
}

// A field's text, in one move of its width when it holds a byte a character.
template <std::size_t N> char* Copia(char* uscita, const Fisso<N>& campo) {
    const std::string_view testo = campo.Vista();
    if (testo.size() != N) return Copia(uscita, testo);
    std::memcpy(uscita, testo.data(), N);
    return uscita + N;
}

template <int N> char* Spazi(char* uscita) {
    std::memset(uscita, ' ', N);
    return uscita + N;
}

// Text of so many characters right-aligned in `N`, as AllineaDestra gives it.
template <int N> char* ADestra(char* uscita, std::string_view testo, int caratteri) {
    if (caratteri >= N) return Copia(uscita, testo);
    Spazi<N>(uscita);
    return Copia(uscita + N - caratteri, testo);
}

// Riga's text, written once into a buffer on the stack and taken as one string. Each number
// takes the shortcut its general form would give for it: the date number is a whole number,
// which Str writes as its digits behind a blank or "-"; a movement's number from 0 up is
// "0000"'s four digits or more.
std::string Riga(const RecMovimento& m, long long chiave, bool marcaAnnullato,
                 DescrizioniInElenco& descrizioni, const ImportiInElenco& importi) {
    char testoImporto[40];
    std::string importoGenerale;
    const std::string_view importo =
        importi.Testo(m.IMPORTO * Stato.Cambio, testoImporto, importoGenerale);
    std::string_view documento = m.NrDoc.Vista();
    documento.remove_prefix(std::min(documento.find_first_not_of(' '), documento.size()));
    documento.remove_suffix(documento.size() - (documento.find_last_not_of(' ') + 1));
    const std::string_view causale = descrizioni.Di(m.Causale);
    const std::string_view campi[] = {m.DataOper.Vista(), m.DataValuta.Vista(), causale,
                                      m.Sospeso.Vista(), m.D_A.Vista(), documento, importo};
    // The numbers, the blanks between the fields, the padding and the marks: below 80.
    std::size_t limite = 80;
    for (std::string_view campo : campi) limite += campo.size();
    char pila[256];
    std::unique_ptr<char[]> grande;
    char* const inizio =
        limite <= sizeof pila ? pila : (grande = std::make_unique<char[]>(limite)).get();
    char* uscita = inizio;

    *uscita++ = chiave < 0 ? '-' : ' ';
    uscita = std::to_chars(uscita, uscita + 12, chiave < 0 ? -chiave : chiave).ptr;
    uscita = Spazi<2>(uscita);
    uscita = Copia(uscita, m.DataOper);
    *uscita++ = ' ';
    uscita = Copia(uscita, m.DataValuta);
    *uscita++ = ' ';
    if (m.NrOper < 0) {
        uscita = Copia(uscita, Format(m.NrOper, "0000"));
    } else {
        char cifre[8];
        char* fine = std::to_chars(cifre, cifre + sizeof cifre, m.NrOper).ptr;
        for (auto k = fine - cifre; k < 4; ++k) *uscita++ = '0';
        uscita = Copia(uscita, {cifre, static_cast<std::size_t>(fine - cifre)});
    }
    *uscita++ = ' ';
    uscita = Copia(uscita, causale);
    uscita = Spazi<2>(uscita);
    uscita = Copia(uscita, m.Sospeso);
    uscita = Spazi<3>(uscita);
    uscita = Copia(uscita, m.D_A);
    uscita = Spazi<2>(uscita);
    // A field of as many bytes as characters, and an amount written here, are plain ASCII.
    const bool documentoAscii = m.NrDoc.Vista().size() == LarghezzaCampo(m.NrDoc);
    uscita = ADestra<8>(uscita, documento,
                        documentoAscii ? static_cast<int>(documento.size()) : Caratteri(documento));
    *uscita++ = ' ';
    uscita = ADestra<15>(uscita, importo,
                         importoGenerale.empty() ? static_cast<int>(importo.size())
                                                 : Caratteri(importo));
    if (marcaAnnullato) uscita = Copia(uscita, " *");
    if (m.Sospeso == "N") uscita = Copia(uscita, " *");
    return std::string(inizio, uscita);
}

// One movement's effect on the four balances; `quota` carries the sign.
void Muovi(double quota, std::string_view sospeso, bool contaOperazione, bool contaValuta) {
    Stato.SaldoUltimaData += quota;
    if (sospeso == "N") Stato.SaldoAllineamento += quota;
    if (contaOperazione) Stato.SaldoOperazione += quota;
    if (contaValuta) Stato.SaldoValuta += quota;
}

void ScriviTotali() {
    ConRecord(NomeFileConto(".TOT"), RecTotali::Lunghezza, 1,
              [] { ScriviRecord(Stato.Totali, 1, 1); });
}

// The working balances and dates into the buffer of .TOT, then the file.
void SalvaTotali() {
    CampiTotali(4, [](const auto& lavoro, auto& totali) { totali = lavoro; });
    ScriviTotali();
}

// The first and last of one date of the movements, compared as whole date numbers, into
// `prima` and `ultima` and the selection fields, and the numbers read, at the movements'
// indices, for the refill that follows; nothing when there was nothing to go by: no movements,
// or `senzaPrimaFerma` and a first date that reads as none.
std::vector<int> Estremi(Fisso<10> RecMovimento::*data, Fisso<10>& prima, Fisso<10>& ultima,
                         bool senzaPrimaFerma) {
    if (Stato.NumMovimenti < 1) return {};
    auto& M = Stato.Movimenti;
    int numeroPrima = NumeroIntero(M[1].*data);
    if (senzaPrimaFerma && numeroPrima == 0) return {};
    int numeroUltima = numeroPrima;
    prima = ultima = M[1].*data;
    std::vector<int> numeri(static_cast<std::size_t>(Stato.NumMovimenti) + 1);
    for (long i = 1; i <= Stato.NumMovimenti; ++i) {
        const int numero = numeri[static_cast<std::size_t>(i)] = NumeroIntero(M[i].*data);
        if (numeroPrima > numero) {
            numeroPrima = numero;
            prima = M[i].*data;
        }
        if (numeroUltima < numero) {
            numeroUltima = numero;
            ultima = M[i].*data;
        }
    }
    auto& f = App().Form9;
    f.DataInizSel.SetText(prima);
    f.DataFineSel.SetText(ultima);
    return numeri;
}

std::vector<int> EstremiLettiOperazione() {
    std::vector<int> numeri = Estremi(&RecMovimento::DataOper, Stato.PrimaDataOperazione,
                                      Stato.UltimaDataOperazione, false);
    if (!numeri.empty()) App().MDIForm1.UltimaData.SetText(Stato.UltimaDataOperazione);
    return numeri;
}

std::vector<int> EstremiLettiValuta() {
    // Nothing to go by either when the first movement has no value date.
    return Estremi(&RecMovimento::DataValuta, Stato.PrimaDataValuta, Stato.UltimaDataValuta,
                   true);
}

// The movements whose `data` falls, by the calendar, between the two selection dates, as lines
// keyed by that date, into `lista`, which takes the place of `altra` under `titolo`. While Ag
// applies a filter it is disabled, and the typed dates stay; else `estremi` sets them first. A
// date the calendar can't read stops the refill with the lines found before it already in the
// list. The date numbers that the extremes read serve as the keys of the lines; without them
// each line reads its own, so that a failure comes where it always came.
void Elenca(Controllo& lista, Controllo& altra, Fisso<10> RecMovimento::*data,
            bool marcaAnnullato, std::vector<int> (*estremi)(), const char* titolo) {
    auto& f = App().Form9;
    const std::vector<int> numeri = f.Ag.Enabled ? estremi() : std::vector<int>{};
    std::string inizio = LTrim(f.DataInizSel.Text());
    std::string fine = LTrim(f.DataFineSel.Text());
    lista.Clear();
    std::vector<std::string> righe;
    righe.reserve(static_cast<std::size_t>(std::max<short>(Stato.NumMovimenti, 0)));
    auto consegna = [&] {
        if (righe.empty()) return;
        lista.AggiungiRighe(std::move(righe));
        lista.Visible = true;
        altra.Visible = false;
    };
    try {
        DescrizioniInElenco descrizioni;
        const ImportiInElenco importi;
        long da = 0, a = 0;
        for (long i = 1; i <= Stato.NumMovimenti; ++i) {
            const RecMovimento& m = Stato.Movimenti[i];
            long giorno = GiornoCalendario(m.*data);
            if (i == 1) {
                da = GiornoCalendario(inizio);
                a = GiornoCalendario(fine);
            }
            if (giorno >= da && giorno <= a) {
                const int chiave = numeri.empty() ? NumeroIntero(m.*data)
                                                  : numeri[static_cast<std::size_t>(i)];
                righe.push_back(Riga(m, chiave, marcaAnnullato && m.Annullato == "S",
                                     descrizioni, importi));
            }
        }
    } catch (...) {
        consegna();
        throw;
    }
    consegna();
    f.Label25.SetText(titolo);
}
} // namespace

std::string RigaElenco(const RecMovimento& m, const std::string& dataChiave,
                       bool marcaAnnullato) {
    DescrizioniInElenco descrizioni;
    return Riga(m, NumeroIntero(dataChiave), marcaAnnullato, descrizioni, ImportiInElenco());
}

int NumeroDaRiga(const std::string& riga) {
    // A line of the register is plain ASCII up to its number, four digits: read them straight,
    // as ScriviOrd does for every line at each new movement.
    constexpr std::size_t Inizio = 31, Cifre = 4;
    bool semplice = riga.size() >= Inizio + Cifre;
    if (semplice) {
        // Eight bytes at a time, the last word overlapping the third.
        std::uint64_t bit = 0;
        for (std::size_t da : {0, 8, 16, 23}) {
            std::uint64_t parola;
            std::memcpy(&parola, riga.data() + da, 8);
            bit |= parola;
        }
        semplice = (bit & 0x8080808080808080u) == 0;
    }
    for (std::size_t i = Inizio; semplice && i < Inizio + Cifre; ++i)
        semplice = riga[i] >= '0' && riga[i] <= '9';
    if (!semplice) return static_cast<int>(Val(Mid(riga, 32, 4)));
    int numero = 0;
    for (std::size_t i = Inizio; i < Inizio + Cifre; ++i) numero = numero * 10 + (riga[i] - '0');
    return numero;
}

void ScriviOrd() {
    const auto& righe = App().Form9.ElencoMovim.Righe();
    // One step past the last line: the empty text there gives the blank Movimenti[0].
    std::vector<long> numeri;
    numeri.reserve(righe.size() + 1);
    for (const std::string& riga : righe) numeri.push_back(NumeroDaRiga(riga));
    numeri.push_back(0);
    // A number beyond the table fails where the walk meets it, with the records before it
    // written.
    std::size_t validi = 0;
    while (validi < numeri.size() && numeri[validi] >= 0 &&
           numeri[validi] <= Stato.Movimenti.Limite())
        ++validi;
    ConRecord(NomeFileConto(".Ord"), RecMovimento::Lunghezza, 1, [&] {
        ScriviRecords([&](std::size_t k) -> const RecMovimento& {
            return Stato.Movimenti[numeri[k]];
        }, validi, 1, 1);
        if (validi < numeri.size()) Errore(9);
    });
}

void ApplicaMovimento(const std::string& dataValuta, const std::string& dataOper, double importo,
                      const std::string& dA, const std::string& sospeso) {
    float oggi = NumeroData(Oggi());
    Muovi(dA == "U" ? -importo : importo, sospeso, NumeroData(dataOper) <= oggi,
          NumeroData(dataValuta) <= oggi);
    RidisegnaSaldi();
    SalvaTotali();
}

void StornaMovimento(const std::string& dataValuta, const std::string& dataOper, double importo,
                     const std::string& dA, const std::string& sospeso) {
    int oggi = NumeroIntero(Oggi());
    Muovi(dA == "U" ? importo : -importo, sospeso, NumeroIntero(dataOper) <= oggi,
          NumeroIntero(dataValuta) <= oggi);
    SalvaTotali();
}

void RicalcolaTotali() {
    // The files win over the table.
    Stato.NumMovimenti = LeggiContatore(NomeFileConto(".MOR"));
    ConRecord(NomeFileConto(".MOV"), RecMovimento::Lunghezza, 1,
              [] { LeggiRecords(Stato.Movimenti.righe, 1, Stato.NumMovimenti, 1); });
    RicalcolaDaMovimenti();
}

void RicalcolaDaMovimenti() {
    int oggi = NumeroIntero(Oggi());
    Stato.SaldoAllineamento = Stato.SaldoValuta = Stato.SaldoOperazione = 0;
    Stato.SaldoUltimaData = 0;
    for (long i = 1; i <= Stato.NumMovimenti; ++i) {
        const RecMovimento& m = Stato.Movimenti[i];
        Muovi(m.D_A == "U" ? -m.IMPORTO : m.IMPORTO, m.Sospeso,
              NumeroIntero(m.DataOper) <= oggi, NumeroIntero(m.DataValuta) <= oggi);
    }
    // Already signed: it adds whatever its sign.
    double riporto = Stato.Riporto[1].ImportoRiporto;
    Stato.SaldoOperazione += riporto;
    Stato.SaldoValuta += riporto;
    Stato.SaldoUltimaData += riporto;
    Stato.SaldoAllineamento += riporto;
    if (Stato.FlagOperazione == 0) RidisegnaSaldi();
    // Only the balances: the dates of the buffer go out as they stand.
    CampiTotali(0, [](const auto& lavoro, auto& totali) { totali = lavoro; });
    ScriviTotali();
}

void AggiungiMovimento() {
    auto& f = App().Form9;
    const RecMovimento& m = Stato.Movimenti[Stato.NumMovimenti];
    ConRecord(NomeFileConto(".MOV"), RecMovimento::Lunghezza, 1,
              [&] { ScriviRecord(m, Stato.NumMovimenti, 1); });
    ScriviContatore(NomeFileConto(".MOR"), Stato.NumMovimenti);

    // Only the list on view gets the line; the other one has it at its next refill.
    bool perOperazione = f.Command2.Enabled;
    const Fisso<10>& data = perOperazione ? m.DataOper : m.DataValuta;
    if (NumeroData(f.DataInizSel.Text()) > NumeroData(data)) f.DataInizSel.SetText(data);
    if (NumeroData(f.DataFineSel.Text()) < NumeroData(data)) f.DataFineSel.SetText(data);
    Controllo& lista = perOperazione ? f.ElencoMovim : f.elencoValuta;
    lista.AddItem(RigaElenco(m, data));
    lista.Visible = true;
    (perOperazione ? f.elencoValuta : f.ElencoMovim).Visible = false;
    f.Label25.SetText(perOperazione ? "Elenco Movimenti per data operazione"
                                    : "Elenco Movimenti per data Valuta");

    ScriviOrd();
    ApplicaMovimento(m.DataValuta, m.DataOper, m.IMPORTO, m.D_A, m.Sospeso);
    ElencaSituazione();
}

void EstremiOperazione() { EstremiLettiOperazione(); }

void EstremiValuta() { EstremiLettiValuta(); }

void AllargaEstremi() {
    // Only the last date widens: the first date's half never runs in this design.
    auto& f = App().Form9;
    if (NumeroData(f.DataOper.Text()) > NumeroData(Stato.UltimaDataOperazione))
        Stato.UltimaDataOperazione = f.DataOper.Text();
    f.DataInizSel.SetText(Stato.PrimaDataOperazione);
    f.DataFineSel.SetText(Stato.UltimaDataOperazione);
}

void ElencaPerOperazione() {
    auto& f = App().Form9;
    Elenca(f.ElencoMovim, f.elencoValuta, &RecMovimento::DataOper, false,
           &EstremiLettiOperazione, "Elenco Movimenti per data operazione");
}

void ElencaPerValuta() {
    auto& f = App().Form9;
    Elenca(f.elencoValuta, f.ElencoMovim, &RecMovimento::DataValuta, true, &EstremiLettiValuta,
           "Elenco Movimenti per data valuta");
}

void RidisegnaSaldi() {
    auto& p = App().MDIForm1;
    auto mostra = [](double saldo) { return Format(saldo * Stato.Cambio, Stato.FormatoImporti); };
    p.Saldi(0).SetText(mostra(Stato.SaldoAllineamento));
    p.Saldi(1).SetText(mostra(Stato.SaldoOperazione));
    p.Saldi(3).SetText(mostra(Stato.SaldoValuta));
    p.Saldi(4).SetText(mostra(Stato.SaldoUltimaData));
    p.UltimaData.SetText(Stato.UltimaDataOperazione);
    p.Saldi(5).SetText(mostra(Stato.Conti[Stato.IndiceConto].Fido + Stato.SaldoOperazione));
}
