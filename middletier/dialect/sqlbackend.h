#pragma once

// The database backends an account set can live on.
enum class SqlBackend { SQLite, PostgreSQL };
