#include <optional>
#include <vector>

#include "common/places.h"
#include "peers/soci_database.h"

namespace cvdeveloper::bench {

namespace {

// A value that outlives its row, in the form in which it is bound again.
struct Field {
    soci::indicator state = soci::i_null;
    soci::data_type type = soci::dt_string;
    std::string text;
    double number = 0;
    int integer = 0;
    std::tm date{};
};

// An insert of all columns of a table, from the fields of a row that was read.
class Insert {
  public:
    Insert(soci::session& sql, const std::string& table, const soci::row& like)
        : fields_(like.size()), statement_(sql) {
        std::vector<std::string> names;
        for (std::size_t i = 0; i < like.size(); ++i) {
            names.push_back(like.get_properties(i).get_name());
            fields_[i].type = like.get_properties(i).get_data_type();
            exchange(fields_[i]);
        }
        statement_.alloc();
        statement_.prepare(insert_text(table, names));
        statement_.define_and_bind();
    }

    std::vector<Field>& fields() { return fields_; }
    void execute() { statement_.execute(true); }

  private:
    void exchange(Field& field) {
        switch (field.type) {
            case soci::dt_string:
                statement_.exchange(use(field.text, field.state));
                break;
            case soci::dt_double:
                statement_.exchange(use(field.number, field.state));
                break;
            case soci::dt_date:
                statement_.exchange(use(field.date, field.state));
                break;
            default:
                statement_.exchange(use(field.integer, field.state));
                break;
        }
    }

    std::vector<Field> fields_;
    soci::statement statement_;
};

std::vector<Field> fields_of(const soci::row& row) {
    std::vector<Field> fields(row.size());
    for (std::size_t i = 0; i < row.size(); ++i) {
        Field& field = fields[i];
        field.state = row.get_indicator(i);
        field.type = row.get_properties(i).get_data_type();
        if (field.state == soci::i_null) {
            continue;
        }
        switch (field.type) {
            case soci::dt_string:
                field.text = row.get<std::string>(i);
                break;
            case soci::dt_double:
                field.number = row.get<double>(i);
                break;
            case soci::dt_date:
                field.date = row.get<std::tm>(i);
                break;
            default:
                field.integer = row.get<int>(i);
                break;
        }
    }
    return fields;
}

class Copier {
  public:
    Copier(soci::session& sql, const std::string& folder)
        : sql_(sql),
          originals_(sql, "activities_to_copy", project_),
          none_(sql, "no_copy"),
          features_(sql, "features_to_copy", original_),
          attachments_(sql, "attachments_to_copy", original_),
          details_(sql, "details_to_copy", original_),
          no_detail_(sql, "no_detail"),
          number_(sql),
          links_(sql, folder),
          log_(folder) {}

    void copy() {
        soci::transaction transaction(sql_);
        const std::vector<std::vector<Field>> activities = all(originals_);
        none_.execute();
        log_.empty_result(statement("no_copy"));
        const std::string project = new_key();
        std::vector<std::vector<Field>> copies;
        for (const std::vector<Field>& activity : activities) {
            std::vector<Field>& copy = copies.emplace_back(activity);
            original_ = activity[0].text;
            copy[0].text = new_key();
            copy[1].integer = 0;
            copy[2].text = number_.take();
            copy[project_column()].text = project;
            copy_features(copy[0].text);
            attachments_.execute();
            copy_details(copy[0].text);
        }
        write(insert_activity_, "AKT", originals_.row(), copies);
        transaction.commit();
    }

  private:
    static std::vector<std::vector<Field>> all(Rows& rows) {
        std::vector<std::vector<Field>> found;
        for (bool more = rows.execute(); more; more = rows.fetch()) {
            found.push_back(fields_of(rows.row()));
        }
        return found;
    }
    void write(std::optional<Insert>& insert, const std::string& table, const soci::row& like,
               const std::vector<std::vector<Field>>& rows) {
        if (!insert) {
            insert.emplace(sql_, table, like);
        }
        for (const std::vector<Field>& row : rows) {
            for (std::size_t i = 0; i < row.size(); ++i) {
                insert->fields()[i] = row[i];
            }
            insert->execute();
        }
    }
    std::size_t project_column() const {
        const soci::row& row = const_cast<Rows&>(originals_).row();
        std::size_t i = 0;
        while (row.get_properties(i).get_name() != "Projekte_Dsn") {
            ++i;
        }
        return i;
    }
    void copy_features(const std::string& copy) {
        std::vector<std::string> found;
        for (bool more = features_.execute(); more; more = features_.fetch()) {
            found.push_back(features_.row().get<std::string>("MKM_DSN"));
        }
        for (const std::string& feature : found) {
            links_.add(copy, feature);
        }
    }
    void copy_details(const std::string& copy) {
        std::vector<std::vector<Field>> found = all(details_);
        no_detail_.execute();
        log_.empty_result(statement("no_detail"));
        for (std::vector<Field>& detail : found) {
            detail[0].text = new_key();
            detail[1].integer = 0;
            detail[2].text = copy;
        }
        write(insert_detail_, "AKTDET", details_.row(), found);
    }

    soci::session& sql_;
    std::string project_ = project_key(copied_project);
    std::string original_;
    Rows originals_;
    Rows none_;
    Rows features_;
    Rows attachments_;
    Rows details_;
    Rows no_detail_;
    std::optional<Insert> insert_activity_;
    std::optional<Insert> insert_detail_;
    Number number_;
    Links links_;
    PeerLog log_;
};

}  // namespace

Workload soci_copy(const std::shared_ptr<soci::session>& sql, const std::string& folder) {
    return {.run = [sql, peer = std::make_shared<Copier>(*sql, folder)] { peer->copy(); }};
}

}  // namespace cvdeveloper::bench
