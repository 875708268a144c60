#include "core/catalogue_db/engine/database.h"
