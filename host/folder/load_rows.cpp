#include "host/folder/load_rows.h"

#include <algorithm>
#include <vector>

#include "cvdeveloper/automation/error.h"
#include "host/errors.h"
#include "host/folder/csv.h"
#include "host/folder/schema_folder.h"
#include "platform/paths.h"

namespace cvdeveloper::standalone {

namespace {

std::string name_of(const std::filesystem::path& file) {
    return paths::to_text(file.stem());
}

void load_file(Database& database, const std::filesystem::path& file) {
    const std::string text = read_schema_file(file);
    CsvReader reader(text);
    std::vector<CsvReader::Cell> row;
    reader.next(row);
    std::string statement = "INSERT OR REPLACE INTO \"" + name_of(file) + "\" (";
    std::string places;
    for (const CsvReader::Cell& column : row) {
        statement.append("\"").append(column.value_or("")).append("\",");
        places += "?,";
    }
    statement.back() = ')';
    places.pop_back();
    const std::size_t columns = row.size();
    const auto insert = database.prepare(statement + " VALUES (" + places + ")", Author::Host);
    for (std::size_t number = 1; reader.next(row); ++number) {
        if (row.size() != columns) {
            raise(HostError::Folder, "Die Datei '" + paths::to_text(file) + "' hat in Zeile " +
                                         std::to_string(number) + " nicht " +
                                         std::to_string(columns) + " Werte.");
        }
        // The columns' declared types turn the texts of numbers into numbers.
        std::vector<Value> values;
        values.reserve(columns);
        for (const CsvReader::Cell& cell : row) {
            values.push_back(cell ? Value(std::string_view(*cell)) : Value());
        }
        insert->execute(values);
    }
}

}  // namespace

void load_rows(Database& database, const std::filesystem::path& folder,
               const Progression& progress) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == ".csv") {
            files.push_back(entry.path());
        }
    }
    std::ranges::sort(files);
    double done = 0;
    for (const std::filesystem::path& file : files) {
        progress(name_of(file), done / static_cast<double>(files.size()));
        load_file(database, file);
        ++done;
    }
}

}  // namespace cvdeveloper::standalone
