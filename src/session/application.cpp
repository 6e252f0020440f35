#include "cvdeveloper/application.h"

#include <algorithm>
#include <iterator>

namespace cvdeveloper {

namespace {

constexpr Operation rows[] = {
    {.id = 40,
     .name = "oBase",
     .kind = OperationKind::Get,
     .binding = bind<&Application::oBase>,
     .parameters = {},
     .help = {.what = "The data operations that work on any table.",
              .result = "The same object each time.",
              .errors = "None.",
              .example = "app.oBase.Sql_Find(\"AKT\", \"1=2\")"}},
    {.id = 41,
     .name = "oTools",
     .kind = OperationKind::Get,
     .binding = bind<&Application::oTools>,
     .parameters = {},
     .help = {.what = "Formatting, texts, working days and placeholders.",
              .result = "The same object each time.",
              .errors = "None.",
              .example = "app.oTools.FormatNumber(1234.5)"}},
    {.id = 42,
     .name = "oFileSystem",
     .kind = OperationKind::Get,
     .binding = bind<&Application::oFileSystem>,
     .parameters = {},
     .help = {.what = "Files and folders.",
              .result = "The same object each time.",
              .errors = "None.",
              .example = "app.oFileSystem.FileExists(\"brief.txt\")"}},
};

std::vector<TopicRows> all_topics() {
    std::vector<TopicRows> all{
        {"session", "Attaching to a host, and what the session tells about itself.",
         SessionFrame::operations()},
        {"log", "The diagnostic log.", DiagnosticLog::operations()},
        {"workers", "The worker objects of a session.", rows},
        {"activities", "Making activities and giving them the defaults of their type.",
         Activities::operations()},
        {"activity-types", "Making activity types.", ActivityTypes::operations()},
        {"emails", "Outgoing e-mails, kept as activities.", Emails::operations()},
        {"activity-copy", "Copying activities with all that hangs on them.",
         ActivityCopy::operations()},
        {"attachments", "Files attached to records.", Attachments::operations()},
        {"property-objects", "Making property objects.", PropertyObjects::operations()},
        {"object-pictures", "Picture files of property objects.", ObjectPictures::operations()},
        {"projects", "Making projects.", Projects::operations()},
        {"requests", "Making requests of buyers and tenants.", Requests::operations()},
        {"case-files", "Making case files.", CaseFiles::operations()},
        {"contracts", "Making contracts.", Contracts::operations()},
        {"addresses", "Making addresses, their names, salutations and phone lists.",
         Addresses::operations()},
        {"detail-sheets", "Making detail sheets.", DetailSheets::operations()},
        {"master-data", "The settings of the host's installation.", MasterData::operations()},
        {"hierarchy", "Parents and roots of records.", Hierarchy::operations()},
        {"feature-catalogue", "The features that records can carry.",
         FeatureCatalogue::operations()},
        {"field-kinds", "The user-defined fields that records can have.", FieldKinds::operations()},
        {"field-options", "The allowed values of option fields.", FieldOptions::operations()},
        {"entry-masks", "Which user-defined fields a record shows, and how.",
         EntryMasks::operations()},
    };
    std::ranges::copy(Families::topics(), std::back_inserter(all));
    return all;
}

}  // namespace

Application::Application() : Application(make_object<Session>()) {}

Application::Application(const Ref<Session>& shared)
    : SessionObject(shared),
      SessionFrame(*shared),
      DiagnosticLog(*shared),
      Activities(*shared),
      ActivityTypes(*shared),
      Emails(*shared),
      ActivityCopy(*shared),
      Attachments(*shared),
      PropertyObjects(*shared),
      ObjectPictures(*shared),
      Projects(*shared),
      Requests(*shared),
      CaseFiles(*shared),
      Contracts(*shared),
      Addresses(*shared),
      DetailSheets(*shared),
      MasterData(*shared),
      Families(*shared),
      Hierarchy(*shared),
      FeatureCatalogue(*shared),
      FieldKinds(*shared),
      FieldOptions(*shared),
      EntryMasks(*shared) {}

Ref<clsBase> Application::oBase() {
    if (!base_) {
        base_ = make_object<clsBase>(shared_session());
    }
    return base_;
}

Ref<clsTools> Application::oTools() {
    if (!tools_) {
        tools_ = make_object<clsTools>(shared_session());
    }
    return tools_;
}

Ref<clsFileSystem> Application::oFileSystem() {
    if (!file_system_) {
        file_system_ = make_object<clsFileSystem>();
    }
    return file_system_;
}

void Application::visit_owned(OwnedVisitor& visitor) const {
    SessionObject::visit_owned(visitor);
    visitor.visit(base_.get());
    visitor.visit(tools_.get());
    visitor.visit(file_system_.get());
}

const InterfaceTable& Application::table() const noexcept {
    static const InterfaceTable all(
        "Application", "The root of the object model: session, records, worker objects.",
        all_topics());
    return all;
}

}  // namespace cvdeveloper
