#include "library/offices.h"

#include <sqlite3.h>

#include <fstream>
#include <memory>
#include <random>
#include <stdexcept>
#include <vector>

#include "common/places.h"
#include "host/database/sqlite/functions.h"
#include "host/folder/create_folder.h"

namespace cvdeveloper::bench {

namespace {

void run_script(const std::string& folder, const std::string& script) {
    sqlite3* opened = nullptr;
    const int code = sqlite3_open((folder + "/corvanta.db").c_str(), &opened);
    const std::unique_ptr<sqlite3, decltype(&sqlite3_close)> database(opened, &sqlite3_close);
    standalone::sqlite::install_functions(opened);
    const std::string whole = "PRAGMA synchronous=OFF; BEGIN;" + script + "COMMIT;";
    if (code != SQLITE_OK ||
        sqlite3_exec(opened, whole.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
        throw std::runtime_error(sqlite3_errmsg(opened));
    }
}

std::string count_to(int count, const std::string& number = "i") {
    return "(WITH RECURSIVE n(" + number + ") AS (SELECT 0 UNION ALL SELECT " + number +
           "+1 FROM n WHERE " + number + "+1 < " + std::to_string(count) + ") SELECT " + number +
           " FROM n)";
}

// Activities as offices have them: some 25 of the columns filled.
std::string insert_activities(int count, int of_each_project, int first_project) {
    return "INSERT INTO AKT (DSN, Kennung, Art_Dsn, Subject, Notiz, Erledigt, Priorität, Status, "
           "Datum, Datum_Bis, Vorlage, Ben_Dsn, AD_Dsn, OBJ_Dsn, Projekte_Dsn, Stichwort1, "
           "Treffpunkt, Kalender, Km, Betrag, Telefonnummer, Richtung, ACL, NEU_BEN_DSN, ANGELEGT, "
           "ÄN_BEN_DSN, TOUCH) SELECT printf('A0000000-0000-4000-8000-%012d', i), "
           "printf('K-%08d', i), 'AA000000-0000-4000-8000-000000000005', "
           "'Besichtigung mit Familie Müller, Nr. ' || i, "
           "'Die Interessenten fragen nach Unterlagen und rufen wieder an.', i % 2, 1, 'offen', "
           "'2026-03-01 14:30:00', '2026-03-01 15:30:00', '2026-03-08 00:00:00', "
           "'BE000000-0000-4000-8000-000000000001', "
           "printf('AD000000-0000-4000-8000-%012d', i % 10000), "
           "printf('0B000000-0000-4000-8000-%012d', i % 5000), "
           "printf('B0000000-0000-4000-8000-%012d', " +
           std::to_string(first_project) + " + i / " + std::to_string(of_each_project) +
           "), 'Verkauf', 'Rosenweg 3', 1, 12.5, 25.0, '0201 0000101', 1, 'Alle:LS;Chef:LSX', "
           "'BE000000-0000-4000-8000-000000000001', '2026-02-01 09:00:00', "
           "'BE000000-0000-4000-8000-000000000001', '2026-02-03 10:00:00' FROM " +
           count_to(count) + ";";
}

std::string insert_details(const std::string& table, const std::string& owner, int records,
                           int each) {
    return "INSERT INTO " + table + "DET (DSN, " + table +
           "_DSN, FldArt_DSN, Eingabe, Von_Num) SELECT "
           "printf('D0000000-0000-4000-8000-%010d%02d', i, j), printf('" +
           owner +
           "-0000-4000-8000-%012d', i), printf('F0000000-0000-4000-8000-%012d', j), "
           "'Wert ' || i || ' von Feldart ' || j, i FROM " +
           count_to(records) + ", " + count_to(each, "j") + ";";
}

std::string insert_features(int records) {
    return "INSERT INTO AKTMKM (DSN, Link_DSN, MKM_DSN) SELECT "
           "printf('C0000000-0000-4000-8000-%010d%02d', i, j), "
           "printf('A0000000-0000-4000-8000-%012d', i), "
           "printf('F0000000-0000-4000-8000-%012d', j) FROM " +
           count_to(records) + ", " + count_to(2, "j") + ";";
}

std::string insert_addresses() {
    return "INSERT INTO AD (DSN, Kennung, NAME, IDX_NAME, Ort) SELECT "
           "printf('AD000000-0000-4000-8000-%012d', i), printf('A-%08d', i), 'Anna Beispiel ' || "
           "i, 'Beispiel', 'Musterstadt' FROM " +
           count_to(addresses) +
           "; INSERT INTO FldArt (DSN, Kürzel, Typ, ad) SELECT "
           "printf('F0000000-0000-4000-8000-%012d', i), 'Feld' || i, 3, 1 FROM " +
           count_to(5) + ";" + insert_details("AD", "AD000000", addresses, 5);
}

void write_content(const std::string& file, std::uint64_t size) {
    std::mt19937_64 numbers{1};
    std::vector<std::uint64_t> piece((std::size_t{1} << 20U) / sizeof(std::uint64_t));
    std::ofstream stream(file, std::ios::binary);
    for (std::uint64_t written = 0; written < size; written += piece.size() * sizeof piece[0]) {
        for (std::uint64_t& number : piece) {
            number = numbers();
        }
        stream.write(reinterpret_cast<const char*>(piece.data()),
                     static_cast<std::streamsize>(
                         std::min<std::uint64_t>(size - written, piece.size() * sizeof piece[0])));
    }
    stream.close();
    if (!stream) {
        throw std::runtime_error(file + " cannot be written");
    }
}

void choose_speed(const std::string& folder) {
    const std::string file = folder + "/corvanta.ini";
    std::ifstream in(file);
    std::string text(std::istreambuf_iterator<char>(in), {});
    const std::string safe = "\nSicherheit = voll";
    text.replace(text.find(safe), safe.size(), "\nSicherheit = schnell");
    std::ofstream(file) << text;
}

}  // namespace

void make_office(std::string_view name, const std::string& folder, bool full_sync,
                 std::uint64_t file_size) {
    const bool from_sample = name == "sample" || name == "project";
    standalone::create_folder(folder, {.sample = from_sample});
    if (!full_sync) {
        choose_speed(folder);
    }
    if (name == "activities") {
        run_script(folder, insert_activities(activities, rows_found, 0) +
                               insert_details("AKT", "A0000000", activities, field_kinds));
    } else if (name == "project") {
        run_script(folder, insert_activities(copied_activities, copied_activities, 1) +
                               insert_features(copied_activities) +
                               insert_details("AKT", "A0000000", copied_activities, 5));
    } else if (name == "addresses") {
        run_script(folder, insert_addresses());
    } else if (name == "file") {
        write_content(folder + "/content.bin", file_size);
    } else if (name != "sample") {
        throw std::runtime_error("no office " + std::string(name));
    }
}

}  // namespace cvdeveloper::bench
