// Everything a host needs, in one include.
#ifndef TARVOLA_TARVOLA_H
#define TARVOLA_TARVOLA_H

#include "tarvola/analysis/Analisia.h"
#include "tarvola/analysis/Sarea.h"
#include "tarvola/engine/Tarvola.h"
#include "tarvola/tables/Egoera.h"
#include "tarvola/tables/Taula.h"
#include "tarvola/tables/Zubia.h"
#include "tarvola/text/Esaldia.h"
#include "tarvola/text/Paragrafoa.h"
#include "tarvola/text/Tokena.h"
#include "tarvola/userdict/HPsarrera.h"
#include "tarvola/userdict/HiztegiPertsonala.h"

#endif
