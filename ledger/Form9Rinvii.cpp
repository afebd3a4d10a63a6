#include "ledger/Form9Rinvii.h"

// Giroconto comes with the transfers between accounts.
void MostraGiroconto() {}

// Form15 comes with the cheques.
void ApriAssegno() {}

// Form3 comes with the cheque books.
void ApriCarnet() {}

// Form15 comes with the cheques.
void GestioneAssegni() {}

// Form3 comes with the cheque books.
void GestioneCarnet() {}

// Form14 comes with the cheque views.
void ArchivioCarnet() {}

// Form17 comes with the cheque views.
void AssegniAnnullati() {}
