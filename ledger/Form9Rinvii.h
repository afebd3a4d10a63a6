#pragma once
// Where Form9 hands over to the screens of the cheques, the cheque books and the transfers
// between accounts: each one opens its screen.

// Giroconto, modal, for a new "GC" movement with more than one account: FlagOperazione = 1 on
// its return says that nothing is to be stored.
void MostraGiroconto();
// Form15, as Causale is left with "AS" or a movement with that code is loaded.
void ApriAssegno();
// Form3, as Causale is left with "CA" or a movement with that code is loaded.
void ApriCarnet();
// Assegno: Form15 with its two dates and its text emptied.
void GestioneAssegni();
// BottCarnet: Form3 with its date emptied and NrFogli "10".
void GestioneCarnet();
// SSCommand1: Form14, the archive of the cheque books.
void ArchivioCarnet();
// AssAnnull: Form17, the cancelled cheques.
void AssegniAnnullati();
