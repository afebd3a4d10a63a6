#include "cheques/ElenchiAssegni.h"

// The cheque screens aren't built yet: until they are, there is nothing to refill.
void ElencaCarnet() {}
void ElencaSituazione() {}
void ElencaAnnullati() {}
