#pragma once
// The lists of the cheque side and the two counts of the main window, refilled whenever the
// books or the cheques change.

// The list of the books (Form14).
void ElencaCarnet();
// The cheques out and in hand (Form13), and the counts AssFuori and AssMano.
void ElencaSituazione();
// The cancelled cheques (Form17).
void ElencaAnnullati();
