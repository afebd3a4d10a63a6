#pragma once
// The load of the open account (CodContoAperto) into the application state.

// Movements, carried-forward balance and cached balances, the balances rebuilt from the files,
// cheque books and cheques, and the refill of the cheque lists. The files of a new account are
// created empty by the reads.
void CaricaConto();
