#include "core/catalogue_db/engine/protezione.h"
