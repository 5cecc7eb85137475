#pragma once

#include "brimlow/database/DatabaseFile.h"

// Throws std::runtime_error when the database is damaged, or one of its rows belongs to none.
void requireSound(const Database::DatabaseFile& file);
