#include "core/catalogue_db/engine/dialetto.h"
