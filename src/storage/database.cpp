#include "storage/database.h"

#include "base/runtime_error.h"
#include "platform/files.h"
#include "storage/connection.h"
#include "storage/statement.h"

namespace storage {

Connection& Database::connection() const
{
    if (connection_ == nullptr) throw base::RuntimeError(base::recordSetNotOpened, "The database is not open");
    return *connection_;
}

void Database::Execute(const std::string& statement)
{
    connection().execute(translateAction(statement));
}

RecordSet Database::OpenRecordset(const std::string& statement) const
{
    connection();
    return {connection_, statement};
}

TableDef Database::CreateTableDef(const std::string& name)
{
    return {name, {}};
}

void Database::AppendTableDef(const TableDef& definition) const
{
    Connection& file = connection();
    if (file.hasTable(definition.Name))
        throw base::RuntimeError(base::existsOrNoAccess,
                                 file.fileName() + " has a table " + definition.Name + " already");
    if (!file.hasTable(definition.SourceTableName))
        throw base::RuntimeError(base::noDatabase, file.fileName() + " has no table " + definition.SourceTableName);
    throw base::RuntimeError(base::invalidArgument,
                             definition.SourceTableName + " cannot be known as " + definition.Name + " too");
}

void Database::Close()
{
    connection_.reset();
}

Database OpenDatabase(const std::string& path)
{
    return Database(connectionTo(platform::resolve(path)));
}

}  // namespace storage
