#include "storage/database.h"

#include <map>

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
    // Every logged QSO comes here twice: a connection that is open under this very text needs no search for its file.
    static std::map<std::string, std::weak_ptr<Connection>> knownPaths;
    std::weak_ptr<Connection>& known = knownPaths[path];
    std::shared_ptr<Connection> connection = known.lock();
    if (connection == nullptr || connection->fileHasMoved() || connection->isForReadingOnly()) {
        connection = connectionTo(platform::resolve(path));
        known = connection;
    }
    return Database(std::move(connection));
}

}  // namespace storage
