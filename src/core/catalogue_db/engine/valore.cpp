#include "core/catalogue_db/engine/valore.h"
