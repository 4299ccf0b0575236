#include "storage/open_databases.h"

#include "base/runtime_error.h"
#include "runstate/modul1.h"
#include "storage/database.h"

namespace storage {

namespace {

void define(const Database& database, TableDef& definition, const std::string& table)
{
    definition = Database::CreateTableDef(table);
    definition.SourceTableName = table;
    database.AppendTableDef(definition);
}

}  // namespace

std::string logDatabasePath()
{
    return Modul1.AppDir + "\\LogKelvo.mdb";
}

std::string locatorDatabasePath()
{
    return Modul1.AppDir + "\\DbsKelvo.mdb";
}

std::string engineProofPath()
{
    return Modul1.AppDir + "\\Kelvo.mdb";
}

void DBsInit()
{
    Modul1.DbLog = OpenDatabase(logDatabasePath());
    Modul1.DbQra = OpenDatabase(locatorDatabasePath());
    base::passing<base::existsOrNoAccess>([] {
        define(Modul1.DbQra, Modul1.TdefQra, "QRA");
        define(Modul1.DbLog, Modul1.TdefUus144a, "Uus144a");
        define(Modul1.DbLog, Modul1.TdefUus144b, "Uus144b");
        define(Modul1.DbLog, Modul1.TdefUus432a, "Uus432a");
        define(Modul1.DbLog, Modul1.TdefUus432b, "Uus432b");
        define(Modul1.DbLog, Modul1.TdefUus1296a, "Uus1296a");
        define(Modul1.DbLog, Modul1.TdefUus1296b, "Uus1296b");
        TableDef microwaves;
        define(Modul1.DbLog, microwaves, "UusGHz");
    });
}

}  // namespace storage
