#include "core/catalogue_db/class_dboper.h"
