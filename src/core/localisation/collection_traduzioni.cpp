#include "core/localisation/collection_traduzioni.h"
