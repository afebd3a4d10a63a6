#pragma once
// The list reports. Each one reads its source file again, selects, and prints one line a record
// on the pages of Pagina.h, with the wait pointer on for the whole run.

// Elenco Movimenti: the selection of Form11 while FlagOperazione is 1, otherwise of Form21.
void StampaMovimenti();
// Elenco Assegni: the "AS" movements of .Ord between Form21's dates.
void StampaAssegni();
// Elenco assegni annullati: the cancelled cheques of the table, at any date.
void StampaAnnullati();
// Elenco Carnet: the books of .CAR withdrawn between Form21's dates.
void StampaCarnet();
// Situazione assegni: the sheets of .FOG dated between Form21's dates and not yet discharged.
void StampaSituazione();
// Elenco Causali: every causale of Causali.DAT.
void StampaCausali();
// Elenco Conti: every account of Conti.dat.
void StampaConti();
// Riepilogo Conti: the figures of Form22, for the option that is on.
void StampaRiepilogo();
