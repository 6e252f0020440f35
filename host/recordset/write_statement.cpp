#include "host/recordset/write_statement.h"

#include <array>

namespace cvdeveloper::standalone {

namespace {

std::string quoted_name(std::string_view name) {
    std::string quoted("\"");
    return quoted.append(name).append("\"");
}

}  // namespace

void WriteStatement::begin(Action action, const Table& table, Version version) {
    action_ = action;
    version_ = version;
    table_ = &table;
    key_.clear();
    key_ += static_cast<char>(action);
    key_ += static_cast<char>(version);
    key_ += table.name();
    key_ += '\0';
    begin_of_columns_ = key_.size();
}

void WriteStatement::add(std::size_t column) {
    const std::array<char, 2> bytes = {static_cast<char>(column & 0xFFU),
                                       static_cast<char>(column >> 8U & 0xFFU)};
    key_.append(bytes.data(), bytes.size());
}

template <class Use>
void WriteStatement::for_each_column(const Use& use) const {
    const auto byte = [this](std::size_t at) {
        return static_cast<std::size_t>(static_cast<unsigned char>(key_[at]));
    };
    for (std::size_t at = begin_of_columns_; at < key_.size(); at += 2) {
        use(quoted_name(table_->columns()[byte(at) | byte(at + 1) << 8U].name));
    }
}

std::string WriteStatement::text() const {
    switch (action_) {
        case Action::Insert:
            return insert_text();
        case Action::Update:
            return update_text();
        case Action::Delete:
            return "DELETE FROM " + quoted_name(table_->name()) + condition();
    }
    return {};
}

std::string WriteStatement::insert_text() const {
    std::string names;
    std::string places;
    for_each_column([&](const std::string& name) {
        names.append(names.empty() ? "" : ",").append(name);
        places.append(places.empty() ? "?" : ",?");
    });
    return "INSERT INTO " + quoted_name(table_->name()) + " (" + names + ") VALUES (" + places +
           ")";
}

std::string WriteStatement::update_text() const {
    std::string text;
    for_each_column([&](const std::string& name) {
        text.append(text.empty() ? "" : ",").append(name).append("=?");
    });
    if (version_ == Version::Checked) {
        text += ",\"STAMP\"=?";
    } else if (version_ == Version::Raised) {
        text += ",\"STAMP\"=\"STAMP\"+1";
    }
    return "UPDATE " + quoted_name(table_->name()) + " SET " + text + condition();
}

std::string WriteStatement::condition() const {
    return version_ == Version::Checked ? " WHERE \"DSN\"=? AND \"STAMP\"=?" : " WHERE \"DSN\"=?";
}

}  // namespace cvdeveloper::standalone
