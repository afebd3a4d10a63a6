#pragma once
// The lists of the cheque side and the two counts of the main window, refilled whenever the
// books or the cheques change, so that each list is up to date before its screen shows.
#include "store/RecordAssegni.h"

#include <string>

// The list of the books (Form14), read afresh from .NRC and .CAR.
void ElencaCarnet();
// The cheques out and in hand (Form13), and the counts AssFuori and AssMano.
void ElencaSituazione();
// The cancelled cheques (Form17).
void ElencaAnnullati();

// The line of a book in Form14: CaricaCarnet reads its number back from the first four columns.
std::string RigaCarnet(const RecCarnet& c);

// The list of Form9 refilled in the order on view.
void RidisegnaElencoForm9();
