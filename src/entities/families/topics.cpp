#include "entities/families/topics.h"

#include <deque>
#include <string>
#include <vector>

#include "platform/text.h"

namespace cvdeveloper::families {

namespace {

std::string operation_name(const Family& family, const KindRow& kind) {
    const bool short_form = family.drops_detail_word && !kind.suffix_without_detail.empty();
    return std::string(family.prefix) + "_" +
           std::string(short_form ? kind.suffix_without_detail : kind.suffix);
}

// What a family makes of the words in a kind's names and texts.
class Words {
  public:
    Words(const Family& family, const KindRow& kind)
        : words_{
              {"{operation}", operation_name(family, kind)},
              {"{table}", std::string(table_for(kind.kind, family))},
              {"{links}", upper_case(table_for(kind.kind, family)) + "MKM"},
              {"{values}", upper_case(table_for(kind.kind, family)) + "DET"},
              {"{form}", std::string(family.form)},
              {"{key}", std::string(family.key_argument)},
              {"{rs}", std::string(family.record_set_argument)},
              {"{name}", std::string(family.name_argument)},
              {"{a record}", std::string(family.article) + " " + std::string(family.record)},
              {"{record}", std::string(family.record)},
              {"{records}", std::string(family.records)},
              {"{name column}", std::string(family.name_column)},
              {"{condition}", std::string(family.condition)},
          } {}

    [[nodiscard]] std::string fill_in(std::string_view pattern) const {
        std::string text(pattern);
        for (const auto& [word, value] : words_) {
            text = replace_all(text, word, value);
        }
        return text;
    }

  private:
    std::vector<std::pair<std::string_view, std::string>> words_;
};

// Owns what the rows refer to. Deques, because their elements stay where they are.
class Table {
  public:
    Table() {
        for (const Family* family : all()) {
            add(*family);
        }
    }

    [[nodiscard]] std::span<const TopicRows> topics() const { return topics_; }
    [[nodiscard]] std::span<const Product> products() const { return products_; }

  private:
    void add(const Family& family) {
        std::vector<Operation>& operations = operations_.emplace_back();
        std::vector<const KindRow*> kinds;
        for (const KindRow& kind : kind_rows()) {
            if (family.kinds.contains(kind.kind)) {
                operations.push_back(operation(family, kind));
                kinds.push_back(&kind);
            }
        }
        for (std::size_t i = 0; i < kinds.size(); ++i) {
            products_.push_back({&family, kinds[i], &operations[i]});
        }
        std::string records(family.records);
        records[0] = static_cast<char>(records[0] - 'a' + 'A');
        topics_.push_back({keep(lower_case(family.prefix) + "-family"),
                           keep(records + ": what all families of records have."), operations});
    }

    Operation operation(const Family& family, const KindRow& kind) {
        const Words words(family, kind);
        const auto filled = [&](std::string_view pattern) { return keep(words.fill_in(pattern)); };
        std::vector<Parameter>& parameters = parameters_.emplace_back();
        for (const Parameter& pattern : kind.parameters) {
            parameters.push_back({.name = filled(pattern.name),
                                  .help = filled(pattern.help),
                                  .default_value = pattern.default_value,
                                  .direction = pattern.direction});
        }
        return {.id = family.block + kind.offset,
                .name = keep(operation_name(family, kind)),
                .kind = OperationKind::Method,
                .binding = kind.binding,
                .parameters = parameters,
                .help = {.what = filled(kind.help.what),
                         .result = filled(kind.help.result),
                         .errors = filled(kind.help.errors),
                         .tables = filled(kind.help.tables),
                         .example = filled(kind.help.example)}};
    }

    std::string_view keep(std::string text) { return texts_.emplace_back(std::move(text)); }

    std::deque<std::string> texts_;
    std::deque<std::vector<Parameter>> parameters_;
    std::deque<std::vector<Operation>> operations_;
    std::vector<TopicRows> topics_;
    std::vector<Product> products_;
};

const Table& table() {
    static const Table all_families;
    return all_families;
}

}  // namespace

std::span<const TopicRows> topics() {
    return table().topics();
}

std::span<const Product> products() {
    return table().products();
}

}  // namespace cvdeveloper::families
