#include "host/recordset/write_statement.h"

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
    key_.push_back(static_cast<unsigned char>(action));
    key_.push_back(static_cast<unsigned char>(version));
    for (const char c : table.name()) {
        key_.push_back(static_cast<unsigned char>(c));
    }
    key_.push_back(0);
    begin_of_columns_ = key_.size();
}

template <class Use>
void WriteStatement::for_each_column(const Use& use) const {
    for (std::size_t i = begin_of_columns_; i < key_.size(); ++i) {
        use(quoted_name(table_->columns()[key_[i]].name));
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
