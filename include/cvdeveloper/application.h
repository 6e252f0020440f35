#pragma once

#include "cvdeveloper/base.h"
#include "cvdeveloper/data/diagnostic_log.h"
#include "cvdeveloper/details/entry_masks.h"
#include "cvdeveloper/details/feature_catalogue.h"
#include "cvdeveloper/details/field_kinds.h"
#include "cvdeveloper/details/field_options.h"
#include "cvdeveloper/entities/activities.h"
#include "cvdeveloper/entities/activity_copy.h"
#include "cvdeveloper/entities/activity_types.h"
#include "cvdeveloper/entities/addresses.h"
#include "cvdeveloper/entities/attachments.h"
#include "cvdeveloper/entities/case_files.h"
#include "cvdeveloper/entities/contracts.h"
#include "cvdeveloper/entities/detail_sheets.h"
#include "cvdeveloper/entities/emails.h"
#include "cvdeveloper/entities/families.h"
#include "cvdeveloper/entities/hierarchy.h"
#include "cvdeveloper/entities/master_data.h"
#include "cvdeveloper/entities/object_pictures.h"
#include "cvdeveloper/entities/projects.h"
#include "cvdeveloper/entities/property_objects.h"
#include "cvdeveloper/entities/requests.h"
#include "cvdeveloper/session/session_frame.h"
#include "cvdeveloper/tools/file_system.h"
#include "cvdeveloper/tools/tools.h"

namespace cvdeveloper {

// The root of the object model: attach it to a host, then call its operations.
//
//     auto app = cvdeveloper::make_object<cvdeveloper::Application>();
//     app->Corvanta_InitConnector("/srv/buero", "chef", "");
//     app->AKT_Create("", "Anruf");
//
// One caller at a time; a second thread waits.
class Application final : public SessionObject,
                          public SessionFrame,
                          public DiagnosticLog,
                          public Activities,
                          public ActivityTypes,
                          public Emails,
                          public ActivityCopy,
                          public Attachments,
                          public PropertyObjects,
                          public ObjectPictures,
                          public Projects,
                          public Requests,
                          public CaseFiles,
                          public Contracts,
                          public Addresses,
                          public DetailSheets,
                          public MasterData,
                          public Families,
                          public Hierarchy,
                          public FeatureCatalogue,
                          public FieldKinds,
                          public FieldOptions,
                          public EntryMasks {
  public:
    static constexpr std::string_view automation_name = "Application";

    Application();

    // The worker objects, made at first use and then kept.
    Ref<clsBase> oBase();
    Ref<clsTools> oTools();
    Ref<clsFileSystem> oFileSystem();

    [[nodiscard]] const InterfaceTable& table() const noexcept override;
    void visit_owned(OwnedVisitor& visitor) const override;

  private:
    explicit Application(const Ref<Session>& shared);

    Ref<clsBase> base_;
    Ref<clsTools> tools_;
    Ref<clsFileSystem> file_system_;
};

}  // namespace cvdeveloper
