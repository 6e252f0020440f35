#include "cvdeveloper/entities/emails.h"

#include "cvdeveloper/data/unit.h"
#include "cvdeveloper/data/user_profile.h"
#include "cvdeveloper/entities/activities.h"
#include "cvdeveloper/entities/attachments.h"
#include "data/help_texts.h"
#include "entities/activity_facts.h"
#include "entities/activity_parameters.h"
#include "entities/new_record.h"
#include "platform/clock.h"

namespace cvdeveloper {

namespace {

namespace argument = activity_parameter;

constexpr std::size_t subject_units = 256;

constexpr Parameter create_parameters[] = {
    {.name = "strAktArtDsn",
     .help = "key of the activity type; \"\" takes the user's type for e-mails",
     .default_value = ""},
    {.name = "strMailTo", .help = "recipients", .default_value = ""},
    {.name = "strMailFrom",
     .help = "sender; \"\" takes the user's e-mail address",
     .default_value = ""},
    {.name = "strMailSubject", .help = "subject, cut to 256 characters", .default_value = ""},
    {.name = "strMailBody", .help = "text of the e-mail", .default_value = ""},
    {.name = "strAttachmentPipeList",
     .help = "paths of the files to attach, separated by \"|\"",
     .default_value = ""},
    {.name = "strMailCC", .help = "copies to", .default_value = ""},
    {.name = "strMailBCC", .help = "blind copies to", .default_value = ""},
    argument::done,
    argument::from,
    argument::until,
    argument::follow_up,
    argument::alarm,
    argument::deletion,
    argument::keyword_1,
    argument::keyword_2,
    argument::mask,
    argument::address_1,
    argument::address_2,
    argument::object,
    argument::request,
    argument::project,
    argument::case_file,
    argument::contract,
    {.name = "strDetailsDsn", .help = "taken and not stored", .default_value = ""},
    argument::root,
};

constexpr Operation rows[] = {
    {.id = 1054,
     .name = "AKT_CreateEMail",
     .kind = OperationKind::Method,
     .binding = bind<&Emails::AKT_CreateEMail>,
     .parameters = create_parameters,
     .help = {.what = "Saves an outgoing e-mail as an activity and queues it for the host's "
                      "delivery. Files are attached as links, marked as sent, and not looked at. "
                      "The user's standard features are added last.",
              .result = "The new activity's key.",
              .errors = "601 \"CVDeveloper wurde nicht initialisiert\" without a session; the "
                        "host's own errors. One while attaching leaves the saved activity with "
                        "what was attached so far and without features.",
              .tables = "Writes AKT and AKTMKM, and the host's Blob object; reads Benutzer and "
                        "Std.",
              .example = "app.AKT_CreateEMail(strMailTo=\"kunde@example.org\", "
                         "strMailSubject=\"Exposé\")"}},
};

}  // namespace

std::span<const Operation> Emails::operations() noexcept {
    return rows;
}

std::string Emails::AKT_CreateEMail(
    std::string_view strAktArtDsn, std::string_view strMailTo, std::string_view strMailFrom,
    std::string_view strMailSubject, std::string_view strMailBody,
    std::string_view strAttachmentPipeList, std::string_view strMailCC, std::string_view strMailBCC,
    bool blnErledigt, Date dateDatum, Date dateDatumBis, Date dateDatumVorlage, Date dateDatumAlarm,
    Date dateLoeschdatum, std::string_view strStichwort1, std::string_view strStichwort2,
    std::string_view strEmskDsn, std::string_view strAdDsn1, std::string_view strAdDsn2,
    std::string_view strObjDsn, std::string_view strAnfDsn, std::string_view strProjekteDsn,
    std::string_view strAktenDsn, std::string_view strVertraegeDsn, std::string_view strDetailsDsn,
    std::string_view strRootAktDsn) const {
    static_cast<void>(strDetailsDsn);  // an e-mail carries no link to a detail sheet
    return in_unit(session(), [&] {
        host::Util& util = session().util();
        const UserProfile user(session());
        RecordSet rs = Activities(session()).AKT_New();
        const std::string from =
            strMailFrom.empty() ? user.field("Email") : std::string(strMailFrom);
        const std::string type =
            strAktArtDsn.empty() ? user.field("FAXART_DSN") : std::string(strAktArtDsn);

        rs.set("Art_Dsn", util.SqlStrNull(type));
        rs.set("MailTo", strMailTo);
        rs.set("MailFrom", from);
        rs.set("cc", strMailCC);
        rs.set("bcc", strMailBCC);
        rs.set("Subject", cut_text(strMailSubject, subject_units));
        rs.set("Notiz", strMailBody);
        write_facts(session(), rs,
                    {.done = blnErledigt,
                     .from = dateDatum,
                     .until = dateDatumBis,
                     .follow_up = dateDatumVorlage,
                     .alarm = dateDatumAlarm,
                     .deletion = dateLoeschdatum,
                     .keyword_1 = strStichwort1,
                     .keyword_2 = strStichwort2,
                     .mask = strEmskDsn,
                     .address_1 = strAdDsn1,
                     .address_2 = strAdDsn2,
                     .object = strObjDsn,
                     .request = strAnfDsn,
                     .project = strProjekteDsn,
                     .case_file = strAktenDsn,
                     .contract = strVertraegeDsn});
        rs.set("Akt_Dsn", util.SqlStrNull(strRootAktDsn));
        rs.set("deferred_delivery_time", now());
        rs.set("delivery_state", std::int32_t{DELIVERYSTATE_Queue});
        rs.set("from_ben_dsn", user.field("DSN"));

        std::string key = save_new_record(session(), rs);
        std::string files(strAttachmentPipeList);
        while (!files.empty()) {
            const std::string path = take_first(files, "|");
            Attachments(session()).AKT_Blob_Add(key, trim_blanks(path), true, true);
        }
        add_standard_features(session(), "AKT", key);
        return key;
    });
}

}  // namespace cvdeveloper
