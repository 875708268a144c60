#include "core/parts_tables/griglia.h"
