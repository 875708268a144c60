#include "core/package/class_progetto_aperto.h"
