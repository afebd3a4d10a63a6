#include "store/Stato.h"

StatoApplicazione Stato;
