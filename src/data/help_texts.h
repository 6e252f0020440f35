#pragma once

// Help texts that many operations share word for word.
namespace cvdeveloper::help {

inline constexpr char session_and_host_errors[] =
    "601 \"CVDeveloper wurde nicht initialisiert\" without a session; the host's own errors.";
inline constexpr char record_set_result[] = "A record set; EOF is true where no row fits.";
inline constexpr char key_result[] = "A record key; \"\" where no row fits.";
inline constexpr char new_row_result[] = "A record set on the new row.";
inline constexpr char new_key_result[] = "The new record's key.";
inline constexpr char unknown_column_errors[] =
    "601 \"CVDeveloper wurde nicht initialisiert\" without a session; the record set's error for "
    "an item of strTableCommaList that names no column.";

inline constexpr char table_argument[] = "table's name, inserted as it stands";
inline constexpr char where_argument[] =
    "condition without WHERE, inserted as it stands; \"\" for all rows";
inline constexpr char order_argument[] = "order without ORDER BY; \"\" for none";
inline constexpr char key_argument[] = "the record's key (Dsn)";
inline constexpr char code_argument[] = "human key; filled up with blanks to 10 characters";
inline constexpr char tables_argument[] =
    "main tables that it is available for, separated by \",\"";
inline constexpr char key_list_argument[] = "keys separated by \",\"";

}  // namespace cvdeveloper::help
