#include "core/parts_tables/distinta.h"
