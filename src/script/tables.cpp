#include "script/tables.h"

#include "base/text.h"
#include "script/step_failed.h"

namespace script {

namespace {

/// Its only table is never read, and has the name of one that is.
constexpr std::string_view engineProof = "Kelvo.mdb";

storage::BehindTheBack open(const storage::DatabaseSchema& database, const VirtualMachine& machine)
{
    return storage::BehindTheBack(machine.fileAt(std::string(database.fileName)));
}

}  // namespace

FoundTable tableNamed(std::string_view name, const VirtualMachine& machine)
{
    for (const storage::DatabaseSchema& database : storage::databaseSchemas()) {
        if (database.fileName == engineProof) continue;
        for (const storage::TableSchema& table : database.tables)
            if (base::equalIgnoringCase(table.name, name)) return {table, open(database, machine)};
    }
    throw StepFailed{"a table " + std::string(name), "none of that name"};
}

storage::BehindTheBack databaseNamed(std::string_view name, const VirtualMachine& machine)
{
    for (const storage::DatabaseSchema& database : storage::databaseSchemas())
        if (base::equalIgnoringCase(database.fileName, name)) return open(database, machine);
    throw StepFailed{"a database " + std::string(name), "none of that name"};
}

std::vector<std::string> comparedValues(const storage::TableSchema& schema,
                                        const storage::BehindTheBack::StoredRow& row)
{
    std::vector<std::string> values;
    for (std::size_t column = 0; column < row.size(); ++column) {
        const bool isCounter = column == 0 && schema.columns.front() == "ID";
        if (!isCounter) values.push_back(row[column].value_or(""));
    }
    return values;
}

}  // namespace script
