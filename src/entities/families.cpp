// Written by the target write_families from the rows in src/entities/families.

#include "cvdeveloper/entities/families.h"

#include "entities/families/kinds.h"
#include "entities/families/topics.h"

namespace cvdeveloper {

std::span<const TopicRows> Families::topics() {
    return families::topics();
}

RecordSet Families::AKT_Find(std::string_view strWhere, std::string_view strOderBy) const {
    return families::find(session(), families::AKT, strWhere, strOderBy);
}

std::string Families::AKT_FindDSN(std::string_view strWhere, std::string_view strOderBy) const {
    return families::find_key(session(), families::AKT, strWhere, strOderBy);
}

RecordSet Families::AKT_FindByDSN(std::string_view strDsn) const {
    return families::find_by_key(session(), families::AKT, strDsn);
}

RecordSet Families::AKT_FindByKennung(std::string_view strKennung) const {
    return families::find_by_code(session(), families::AKT, strKennung);
}

std::string Families::AKT_FindDsnByKennung(std::string_view strKennung) const {
    return families::find_key_by_code(session(), families::AKT, strKennung);
}

bool Families::AKT_Delete(const RecordSet& rsAkt) const {
    return families::remove(session(), families::AKT, rsAkt);
}

bool Families::AKT_DeleteByDsn(std::string_view strDsn) const {
    return families::remove_by_key(session(), families::AKT, strDsn);
}

void Families::AKT_Update(RecordSet& rsAkt) const {
    families::update(session(), families::AKT, rsAkt);
}

void Families::AKT_Show(std::string_view strWhere) const {
    families::show(session(), families::AKT, strWhere);
}

void Families::AKT_ShowDSN(std::string_view strDsn) const {
    families::show_by_key(session(), families::AKT, strDsn);
}

void Families::AKT_Merkmal_Add(std::string_view strAktDsn,
                               std::string_view strMkmDSNCommaList) const {
    families::add_features(session(), families::AKT, strAktDsn, strMkmDSNCommaList);
}

void Families::AKT_Merkmal_Del(std::string_view strAktDsn,
                               std::string_view strMkmDSNCommaList) const {
    families::remove_features(session(), families::AKT, strAktDsn, strMkmDSNCommaList);
}

void Families::AKT_Merkmal_Switch(std::string_view strAktDsn, std::string_view strMkmDsnOld,
                                  std::string_view strMkmDsnNew) const {
    families::switch_feature(session(), families::AKT, strAktDsn, strMkmDsnOld, strMkmDsnNew);
}

bool Families::AKT_Merkmal_Contains(std::string_view strAktDsn, std::string_view strMkmDSN) const {
    return families::has_feature(session(), families::AKT, strAktDsn, strMkmDSN);
}

std::string Families::AKT_Merkmal_StdDsnCommaList() const {
    return families::standard_features(session(), families::AKT);
}

std::string Families::AKT_Merkmal_Get(std::string_view strAktDsn) const {
    return families::get_features(session(), families::AKT, strAktDsn);
}

void Families::AKT_Merkmal_Copy(std::string_view strSourceDsn, std::string_view strDestDsn) const {
    families::copy_features(session(), families::AKT, strSourceDsn, strDestDsn);
}

void Families::AKT_Detail_Delete(std::string_view strAktDsn, std::string_view strFldArtDsn) const {
    families::remove_detail(session(), families::AKT, strAktDsn, strFldArtDsn);
}

void Families::AKT_Detail_Set(std::string_view strAktDsn, std::string_view strFldArtDsn,
                              std::string_view strValue, std::string_view strAcl,
                              std::string_view strLinkDsn) const {
    families::set_detail(session(), families::AKT, strAktDsn, strFldArtDsn, strValue, strAcl,
                         strLinkDsn);
}

std::string Families::AKT_Detail_Get(std::string_view strAktDsn,
                                     std::string_view strFldArtDsn) const {
    return families::get_detail(session(), families::AKT, strAktDsn, strFldArtDsn);
}

void Families::AKT_Detail_SetOptionDsn(std::string_view strAktDsn, std::string_view strFldArtDsn,
                                       std::string_view strOpDsn, std::string_view strAcl) const {
    families::set_option(session(), families::AKT, strAktDsn, strFldArtDsn, strOpDsn, strAcl);
}

std::string Families::AKT_Detail_GetOptionDsn(std::string_view strAktDsn,
                                              std::string_view strFldArtDsn) const {
    return families::get_option(session(), families::AKT, strAktDsn, strFldArtDsn);
}

std::int32_t Families::AKT_Detail_Copy(std::string_view strSourceDsn,
                                       std::string_view strDestDsn) const {
    return families::copy_details(session(), families::AKT, strSourceDsn, strDestDsn);
}

RecordSet Families::OBJ_Find(std::string_view strWhere, std::string_view strOderBy) const {
    return families::find(session(), families::OBJ, strWhere, strOderBy);
}

std::string Families::OBJ_FindDSN(std::string_view strWhere, std::string_view strOderBy) const {
    return families::find_key(session(), families::OBJ, strWhere, strOderBy);
}

RecordSet Families::OBJ_FindByDSN(std::string_view strDsn) const {
    return families::find_by_key(session(), families::OBJ, strDsn);
}

RecordSet Families::OBJ_FindByKennung(std::string_view strKennung) const {
    return families::find_by_code(session(), families::OBJ, strKennung);
}

std::string Families::OBJ_FindDsnByKennung(std::string_view strKennung) const {
    return families::find_key_by_code(session(), families::OBJ, strKennung);
}

bool Families::OBJ_Delete(const RecordSet& rsObj) const {
    return families::remove(session(), families::OBJ, rsObj);
}

bool Families::OBJ_DeleteByDsn(std::string_view strDsn) const {
    return families::remove_by_key(session(), families::OBJ, strDsn);
}

void Families::OBJ_Update(RecordSet& rsObj) const {
    families::update(session(), families::OBJ, rsObj);
}

void Families::OBJ_Show(std::string_view strWhere) const {
    families::show(session(), families::OBJ, strWhere);
}

void Families::OBJ_ShowDSN(std::string_view strDsn) const {
    families::show_by_key(session(), families::OBJ, strDsn);
}

void Families::OBJ_Merkmal_Add(std::string_view strObjDsn,
                               std::string_view strMkmDSNCommaList) const {
    families::add_features(session(), families::OBJ, strObjDsn, strMkmDSNCommaList);
}

void Families::OBJ_Merkmal_Del(std::string_view strObjDsn,
                               std::string_view strMkmDSNCommaList) const {
    families::remove_features(session(), families::OBJ, strObjDsn, strMkmDSNCommaList);
}

void Families::OBJ_Merkmal_Switch(std::string_view strObjDsn, std::string_view strMkmDsnOld,
                                  std::string_view strMkmDsnNew) const {
    families::switch_feature(session(), families::OBJ, strObjDsn, strMkmDsnOld, strMkmDsnNew);
}

bool Families::OBJ_Merkmal_Contains(std::string_view strObjDsn, std::string_view strMkmDSN) const {
    return families::has_feature(session(), families::OBJ, strObjDsn, strMkmDSN);
}

std::string Families::OBJ_Merkmal_StdDsnCommaList() const {
    return families::standard_features(session(), families::OBJ);
}

void Families::OBJ_Detail_Delete(std::string_view strObjDsn, std::string_view strFldArtDsn) const {
    families::remove_detail(session(), families::OBJ, strObjDsn, strFldArtDsn);
}

void Families::OBJ_Detail_Set(std::string_view strObjDsn, std::string_view strFldArtDsn,
                              std::string_view strValue, std::string_view strAcl,
                              std::string_view strLinkDsn) const {
    families::set_detail(session(), families::OBJ, strObjDsn, strFldArtDsn, strValue, strAcl,
                         strLinkDsn);
}

std::string Families::OBJ_Detail_Get(std::string_view strObjDsn,
                                     std::string_view strFldArtDsn) const {
    return families::get_detail(session(), families::OBJ, strObjDsn, strFldArtDsn);
}

void Families::OBJ_Detail_SetOptionDsn(std::string_view strObjDsn, std::string_view strFldArtDsn,
                                       std::string_view strOpDsn, std::string_view strAcl) const {
    families::set_option(session(), families::OBJ, strObjDsn, strFldArtDsn, strOpDsn, strAcl);
}

std::string Families::OBJ_Detail_GetOptionDsn(std::string_view strObjDsn,
                                              std::string_view strFldArtDsn) const {
    return families::get_option(session(), families::OBJ, strObjDsn, strFldArtDsn);
}

RecordSet Families::PROJEKTE_Find(std::string_view strWhere, std::string_view strOderBy) const {
    return families::find(session(), families::PROJEKTE, strWhere, strOderBy);
}

std::string Families::PROJEKTE_FindDSN(std::string_view strWhere,
                                       std::string_view strOderBy) const {
    return families::find_key(session(), families::PROJEKTE, strWhere, strOderBy);
}

RecordSet Families::PROJEKTE_FindByDSN(std::string_view strDsn) const {
    return families::find_by_key(session(), families::PROJEKTE, strDsn);
}

RecordSet Families::PROJEKTE_FindByKennung(std::string_view strKennung) const {
    return families::find_by_code(session(), families::PROJEKTE, strKennung);
}

std::string Families::PROJEKTE_FindDsnByKennung(std::string_view strKennung) const {
    return families::find_key_by_code(session(), families::PROJEKTE, strKennung);
}

bool Families::PROJEKTE_Delete(const RecordSet& rsProjekte) const {
    return families::remove(session(), families::PROJEKTE, rsProjekte);
}

bool Families::PROJEKTE_DeleteByDsn(std::string_view strDsn) const {
    return families::remove_by_key(session(), families::PROJEKTE, strDsn);
}

void Families::PROJEKTE_Update(RecordSet& rsProjekte) const {
    families::update(session(), families::PROJEKTE, rsProjekte);
}

void Families::PROJEKTE_Show(std::string_view strWhere) const {
    families::show(session(), families::PROJEKTE, strWhere);
}

void Families::PROJEKTE_ShowDSN(std::string_view strDsn) const {
    families::show_by_key(session(), families::PROJEKTE, strDsn);
}

void Families::PROJEKTE_Merkmal_Add(std::string_view strProjekteDsn,
                                    std::string_view strMkmDSNCommaList) const {
    families::add_features(session(), families::PROJEKTE, strProjekteDsn, strMkmDSNCommaList);
}

void Families::PROJEKTE_Merkmal_Del(std::string_view strProjekteDsn,
                                    std::string_view strMkmDSNCommaList) const {
    families::remove_features(session(), families::PROJEKTE, strProjekteDsn, strMkmDSNCommaList);
}

void Families::PROJEKTE_Merkmal_Switch(std::string_view strProjekteDsn,
                                       std::string_view strMkmDsnOld,
                                       std::string_view strMkmDsnNew) const {
    families::switch_feature(session(), families::PROJEKTE, strProjekteDsn, strMkmDsnOld,
                             strMkmDsnNew);
}

bool Families::PROJEKTE_Merkmal_Contains(std::string_view strProjekteDsn,
                                         std::string_view strMkmDSN) const {
    return families::has_feature(session(), families::PROJEKTE, strProjekteDsn, strMkmDSN);
}

std::string Families::PROJEKTE_Merkmal_StdDsnCommaList() const {
    return families::standard_features(session(), families::PROJEKTE);
}

void Families::PROJEKTE_Detail_Delete(std::string_view strProjekteDsn,
                                      std::string_view strFldArtDsn) const {
    families::remove_detail(session(), families::PROJEKTE, strProjekteDsn, strFldArtDsn);
}

void Families::PROJEKTE_Detail_Set(std::string_view strProjekteDsn, std::string_view strFldArtDsn,
                                   std::string_view strValue, std::string_view strAcl,
                                   std::string_view strLinkDsn) const {
    families::set_detail(session(), families::PROJEKTE, strProjekteDsn, strFldArtDsn, strValue,
                         strAcl, strLinkDsn);
}

std::string Families::PROJEKTE_Detail_Get(std::string_view strProjekteDsn,
                                          std::string_view strFldArtDsn) const {
    return families::get_detail(session(), families::PROJEKTE, strProjekteDsn, strFldArtDsn);
}

void Families::PROJEKTE_Detail_SetOptionDsn(std::string_view strProjekteDsn,
                                            std::string_view strFldArtDsn,
                                            std::string_view strOpDsn,
                                            std::string_view strAcl) const {
    families::set_option(session(), families::PROJEKTE, strProjekteDsn, strFldArtDsn, strOpDsn,
                         strAcl);
}

std::string Families::PROJEKTE_Detail_GetOptionDsn(std::string_view strProjekteDsn,
                                                   std::string_view strFldArtDsn) const {
    return families::get_option(session(), families::PROJEKTE, strProjekteDsn, strFldArtDsn);
}

std::string Families::PROJEKTE_FindDsnByName(std::string_view strProjektBezeichnung) const {
    return families::find_key_by_name(session(), families::PROJEKTE, strProjektBezeichnung);
}

RecordSet Families::ANF_Find(std::string_view strWhere, std::string_view strOderBy) const {
    return families::find(session(), families::ANF, strWhere, strOderBy);
}

std::string Families::ANF_FindDSN(std::string_view strWhere, std::string_view strOderBy) const {
    return families::find_key(session(), families::ANF, strWhere, strOderBy);
}

RecordSet Families::ANF_FindByDSN(std::string_view strDsn) const {
    return families::find_by_key(session(), families::ANF, strDsn);
}

RecordSet Families::ANF_FindByKennung(std::string_view strKennung) const {
    return families::find_by_code(session(), families::ANF, strKennung);
}

std::string Families::ANF_FindDsnByKennung(std::string_view strKennung) const {
    return families::find_key_by_code(session(), families::ANF, strKennung);
}

bool Families::ANF_Delete(const RecordSet& rsAnf) const {
    return families::remove(session(), families::ANF, rsAnf);
}

bool Families::ANF_DeleteByDsn(std::string_view strDsn) const {
    return families::remove_by_key(session(), families::ANF, strDsn);
}

void Families::ANF_Update(RecordSet& rsAnf) const {
    families::update(session(), families::ANF, rsAnf);
}

void Families::ANF_Show(std::string_view strWhere) const {
    families::show(session(), families::ANF, strWhere);
}

void Families::ANF_ShowDSN(std::string_view strDsn) const {
    families::show_by_key(session(), families::ANF, strDsn);
}

void Families::ANF_Merkmal_Add(std::string_view strAnfDsn,
                               std::string_view strMkmDSNCommaList) const {
    families::add_features(session(), families::ANF, strAnfDsn, strMkmDSNCommaList);
}

void Families::ANF_Merkmal_Del(std::string_view strAnfDsn,
                               std::string_view strMkmDSNCommaList) const {
    families::remove_features(session(), families::ANF, strAnfDsn, strMkmDSNCommaList);
}

void Families::ANF_Merkmal_Switch(std::string_view strAnfDsn, std::string_view strMkmDsnOld,
                                  std::string_view strMkmDsnNew) const {
    families::switch_feature(session(), families::ANF, strAnfDsn, strMkmDsnOld, strMkmDsnNew);
}

bool Families::ANF_Merkmal_Contains(std::string_view strAnfDsn, std::string_view strMkmDSN) const {
    return families::has_feature(session(), families::ANF, strAnfDsn, strMkmDSN);
}

std::string Families::ANF_Merkmal_StdDsnCommaList() const {
    return families::standard_features(session(), families::ANF);
}

void Families::ANF_Detail_Delete(std::string_view strAnfDsn, std::string_view strFldArtDsn) const {
    families::remove_detail(session(), families::ANF, strAnfDsn, strFldArtDsn);
}

void Families::ANF_Detail_Set(std::string_view strAnfDsn, std::string_view strFldArtDsn,
                              std::string_view strValue, std::string_view strAcl,
                              std::string_view strLinkDsn) const {
    families::set_detail(session(), families::ANF, strAnfDsn, strFldArtDsn, strValue, strAcl,
                         strLinkDsn);
}

std::string Families::ANF_Detail_Get(std::string_view strAnfDsn,
                                     std::string_view strFldArtDsn) const {
    return families::get_detail(session(), families::ANF, strAnfDsn, strFldArtDsn);
}

void Families::ANF_Detail_SetOptionDsn(std::string_view strAnfDsn, std::string_view strFldArtDsn,
                                       std::string_view strOpDsn, std::string_view strAcl) const {
    families::set_option(session(), families::ANF, strAnfDsn, strFldArtDsn, strOpDsn, strAcl);
}

std::string Families::ANF_Detail_GetOptionDsn(std::string_view strAnfDsn,
                                              std::string_view strFldArtDsn) const {
    return families::get_option(session(), families::ANF, strAnfDsn, strFldArtDsn);
}

RecordSet Families::AKTEN_Find(std::string_view strWhere, std::string_view strOderBy) const {
    return families::find(session(), families::AKTEN, strWhere, strOderBy);
}

std::string Families::AKTEN_FindDSN(std::string_view strWhere, std::string_view strOderBy) const {
    return families::find_key(session(), families::AKTEN, strWhere, strOderBy);
}

RecordSet Families::AKTEN_FindByDSN(std::string_view strDsn) const {
    return families::find_by_key(session(), families::AKTEN, strDsn);
}

RecordSet Families::AKTEN_FindByKennung(std::string_view strKennung) const {
    return families::find_by_code(session(), families::AKTEN, strKennung);
}

std::string Families::AKTEN_FindDsnByKennung(std::string_view strKennung) const {
    return families::find_key_by_code(session(), families::AKTEN, strKennung);
}

bool Families::AKTEN_Delete(const RecordSet& rsAkten) const {
    return families::remove(session(), families::AKTEN, rsAkten);
}

bool Families::AKTEN_DeleteByDsn(std::string_view strDsn) const {
    return families::remove_by_key(session(), families::AKTEN, strDsn);
}

void Families::AKTEN_Update(RecordSet& rsAkten) const {
    families::update(session(), families::AKTEN, rsAkten);
}

void Families::AKTEN_Show(std::string_view strWhere) const {
    families::show(session(), families::AKTEN, strWhere);
}

void Families::AKTEN_ShowDSN(std::string_view strDsn) const {
    families::show_by_key(session(), families::AKTEN, strDsn);
}

void Families::AKTEN_Merkmal_Add(std::string_view strAktenDsn,
                                 std::string_view strMkmDSNCommaList) const {
    families::add_features(session(), families::AKTEN, strAktenDsn, strMkmDSNCommaList);
}

void Families::AKTEN_Merkmal_Del(std::string_view strAktenDsn,
                                 std::string_view strMkmDSNCommaList) const {
    families::remove_features(session(), families::AKTEN, strAktenDsn, strMkmDSNCommaList);
}

void Families::AKTEN_Merkmal_Switch(std::string_view strAktenDsn, std::string_view strMkmDsnOld,
                                    std::string_view strMkmDsnNew) const {
    families::switch_feature(session(), families::AKTEN, strAktenDsn, strMkmDsnOld, strMkmDsnNew);
}

bool Families::AKTEN_Merkmal_Contains(std::string_view strAktenDsn,
                                      std::string_view strMkmDSN) const {
    return families::has_feature(session(), families::AKTEN, strAktenDsn, strMkmDSN);
}

std::string Families::AKTEN_Merkmal_StdDsnCommaList() const {
    return families::standard_features(session(), families::AKTEN);
}

void Families::AKTEN_Detail_Delete(std::string_view strAktenDsn,
                                   std::string_view strFldArtDsn) const {
    families::remove_detail(session(), families::AKTEN, strAktenDsn, strFldArtDsn);
}

void Families::AKTEN_Detail_Set(std::string_view strAktenDsn, std::string_view strFldArtDsn,
                                std::string_view strValue, std::string_view strAcl,
                                std::string_view strLinkDsn) const {
    families::set_detail(session(), families::AKTEN, strAktenDsn, strFldArtDsn, strValue, strAcl,
                         strLinkDsn);
}

std::string Families::AKTEN_Detail_Get(std::string_view strAktenDsn,
                                       std::string_view strFldArtDsn) const {
    return families::get_detail(session(), families::AKTEN, strAktenDsn, strFldArtDsn);
}

void Families::AKTEN_Detail_SetOptionDsn(std::string_view strAktenDsn,
                                         std::string_view strFldArtDsn, std::string_view strOpDsn,
                                         std::string_view strAcl) const {
    families::set_option(session(), families::AKTEN, strAktenDsn, strFldArtDsn, strOpDsn, strAcl);
}

std::string Families::AKTEN_Detail_GetOptionDsn(std::string_view strAktenDsn,
                                                std::string_view strFldArtDsn) const {
    return families::get_option(session(), families::AKTEN, strAktenDsn, strFldArtDsn);
}

RecordSet Families::VERTRAEGE_Find(std::string_view strWhere, std::string_view strOderBy) const {
    return families::find(session(), families::VERTRAEGE, strWhere, strOderBy);
}

std::string Families::VERTRAEGE_FindDSN(std::string_view strWhere,
                                        std::string_view strOderBy) const {
    return families::find_key(session(), families::VERTRAEGE, strWhere, strOderBy);
}

RecordSet Families::VERTRAEGE_FindByDSN(std::string_view strDsn) const {
    return families::find_by_key(session(), families::VERTRAEGE, strDsn);
}

RecordSet Families::VERTRAEGE_FindByKennung(std::string_view strKennung) const {
    return families::find_by_code(session(), families::VERTRAEGE, strKennung);
}

std::string Families::VERTRAEGE_FindDsnByKennung(std::string_view strKennung) const {
    return families::find_key_by_code(session(), families::VERTRAEGE, strKennung);
}

bool Families::VERTRAEGE_Delete(const RecordSet& rsVertraege) const {
    return families::remove(session(), families::VERTRAEGE, rsVertraege);
}

bool Families::VERTRAEGE_DeleteByDsn(std::string_view strDsn) const {
    return families::remove_by_key(session(), families::VERTRAEGE, strDsn);
}

void Families::VERTRAEGE_Update(RecordSet& rsVertraege) const {
    families::update(session(), families::VERTRAEGE, rsVertraege);
}

void Families::VERTRAEGE_Show(std::string_view strWhere) const {
    families::show(session(), families::VERTRAEGE, strWhere);
}

void Families::VERTRAEGE_ShowDSN(std::string_view strDsn) const {
    families::show_by_key(session(), families::VERTRAEGE, strDsn);
}

void Families::VERTRAEGE_Merkmal_Add(std::string_view strVertraegeDsn,
                                     std::string_view strMkmDSNCommaList) const {
    families::add_features(session(), families::VERTRAEGE, strVertraegeDsn, strMkmDSNCommaList);
}

void Families::VERTRAEGE_Merkmal_Del(std::string_view strVertraegeDsn,
                                     std::string_view strMkmDSNCommaList) const {
    families::remove_features(session(), families::VERTRAEGE, strVertraegeDsn, strMkmDSNCommaList);
}

void Families::VERTRAEGE_Merkmal_Switch(std::string_view strVertraegeDsn,
                                        std::string_view strMkmDsnOld,
                                        std::string_view strMkmDsnNew) const {
    families::switch_feature(session(), families::VERTRAEGE, strVertraegeDsn, strMkmDsnOld,
                             strMkmDsnNew);
}

bool Families::VERTRAEGE_Merkmal_Contains(std::string_view strVertraegeDsn,
                                          std::string_view strMkmDSN) const {
    return families::has_feature(session(), families::VERTRAEGE, strVertraegeDsn, strMkmDSN);
}

std::string Families::VERTRAEGE_Merkmal_StdDsnCommaList() const {
    return families::standard_features(session(), families::VERTRAEGE);
}

void Families::VERTRAEGE_Detail_Delete(std::string_view strVertraegeDsn,
                                       std::string_view strFldArtDsn) const {
    families::remove_detail(session(), families::VERTRAEGE, strVertraegeDsn, strFldArtDsn);
}

void Families::VERTRAEGE_Detail_Set(std::string_view strVertraegeDsn, std::string_view strFldArtDsn,
                                    std::string_view strValue, std::string_view strAcl,
                                    std::string_view strLinkDsn) const {
    families::set_detail(session(), families::VERTRAEGE, strVertraegeDsn, strFldArtDsn, strValue,
                         strAcl, strLinkDsn);
}

std::string Families::VERTRAEGE_Detail_Get(std::string_view strVertraegeDsn,
                                           std::string_view strFldArtDsn) const {
    return families::get_detail(session(), families::VERTRAEGE, strVertraegeDsn, strFldArtDsn);
}

void Families::VERTRAEGE_Detail_SetOptionDsn(std::string_view strVertraegeDsn,
                                             std::string_view strFldArtDsn,
                                             std::string_view strOpDsn,
                                             std::string_view strAcl) const {
    families::set_option(session(), families::VERTRAEGE, strVertraegeDsn, strFldArtDsn, strOpDsn,
                         strAcl);
}

std::string Families::VERTRAEGE_Detail_GetOptionDsn(std::string_view strVertraegeDsn,
                                                    std::string_view strFldArtDsn) const {
    return families::get_option(session(), families::VERTRAEGE, strVertraegeDsn, strFldArtDsn);
}

RecordSet Families::AD_Find(std::string_view strWhere, std::string_view strOderBy) const {
    return families::find(session(), families::AD, strWhere, strOderBy);
}

std::string Families::AD_FindDSN(std::string_view strWhere, std::string_view strOderBy) const {
    return families::find_key(session(), families::AD, strWhere, strOderBy);
}

RecordSet Families::AD_FindByDSN(std::string_view strDsn) const {
    return families::find_by_key(session(), families::AD, strDsn);
}

RecordSet Families::AD_FindByKennung(std::string_view strKennung) const {
    return families::find_by_code(session(), families::AD, strKennung);
}

std::string Families::AD_FindDsnByKennung(std::string_view strKennung) const {
    return families::find_key_by_code(session(), families::AD, strKennung);
}

bool Families::AD_Delete(const RecordSet& rsAd) const {
    return families::remove(session(), families::AD, rsAd);
}

bool Families::AD_DeleteByDsn(std::string_view strDsn) const {
    return families::remove_by_key(session(), families::AD, strDsn);
}

void Families::AD_Update(RecordSet& rsAd) const {
    families::update(session(), families::AD, rsAd);
}

void Families::AD_Show(std::string_view strWhere) const {
    families::show(session(), families::AD, strWhere);
}

void Families::AD_ShowDSN(std::string_view strDsn) const {
    families::show_by_key(session(), families::AD, strDsn);
}

void Families::AD_Merkmal_Add(std::string_view strAdDsn,
                              std::string_view strMkmDSNCommaList) const {
    families::add_features(session(), families::AD, strAdDsn, strMkmDSNCommaList);
}

void Families::AD_Merkmal_Del(std::string_view strAdDsn,
                              std::string_view strMkmDSNCommaList) const {
    families::remove_features(session(), families::AD, strAdDsn, strMkmDSNCommaList);
}

void Families::AD_Merkmal_Switch(std::string_view strAdDsn, std::string_view strMkmDsnOld,
                                 std::string_view strMkmDsnNew) const {
    families::switch_feature(session(), families::AD, strAdDsn, strMkmDsnOld, strMkmDsnNew);
}

bool Families::AD_Merkmal_Contains(std::string_view strAdDsn, std::string_view strMkmDSN) const {
    return families::has_feature(session(), families::AD, strAdDsn, strMkmDSN);
}

std::string Families::AD_Merkmal_StdDsnCommaList() const {
    return families::standard_features(session(), families::AD);
}

RecordSet Families::Details_Find(std::string_view strWhere, std::string_view strOderBy) const {
    return families::find(session(), families::Details, strWhere, strOderBy);
}

std::string Families::Details_FindDSN(std::string_view strWhere, std::string_view strOderBy) const {
    return families::find_key(session(), families::Details, strWhere, strOderBy);
}

RecordSet Families::Details_FindByDSN(std::string_view strDsn) const {
    return families::find_by_key(session(), families::Details, strDsn);
}

RecordSet Families::Details_FindByKennung(std::string_view strKennung) const {
    return families::find_by_code(session(), families::Details, strKennung);
}

std::string Families::Details_FindDsnByKennung(std::string_view strKennung) const {
    return families::find_key_by_code(session(), families::Details, strKennung);
}

bool Families::Details_Delete(const RecordSet& rsDetails) const {
    return families::remove(session(), families::Details, rsDetails);
}

bool Families::Details_DeleteByDsn(std::string_view strDsn) const {
    return families::remove_by_key(session(), families::Details, strDsn);
}

void Families::Details_Update(RecordSet& rsDetails) const {
    families::update(session(), families::Details, rsDetails);
}

void Families::Details_Show(std::string_view strWhere) const {
    families::show(session(), families::Details, strWhere);
}

void Families::Details_ShowDSN(std::string_view strDsn) const {
    families::show_by_key(session(), families::Details, strDsn);
}

void Families::Details_Merkmal_Add(std::string_view strDetailsDsn,
                                   std::string_view strMkmDSNCommaList) const {
    families::add_features(session(), families::Details, strDetailsDsn, strMkmDSNCommaList);
}

void Families::Details_Merkmal_Del(std::string_view strDetailsDsn,
                                   std::string_view strMkmDSNCommaList) const {
    families::remove_features(session(), families::Details, strDetailsDsn, strMkmDSNCommaList);
}

void Families::Details_Merkmal_Switch(std::string_view strDetailsDsn, std::string_view strMkmDsnOld,
                                      std::string_view strMkmDsnNew) const {
    families::switch_feature(session(), families::Details, strDetailsDsn, strMkmDsnOld,
                             strMkmDsnNew);
}

bool Families::Details_Merkmal_Contains(std::string_view strDetailsDsn,
                                        std::string_view strMkmDSN) const {
    return families::has_feature(session(), families::Details, strDetailsDsn, strMkmDSN);
}

std::string Families::Details_Merkmal_StdDsnCommaList() const {
    return families::standard_features(session(), families::Details);
}

void Families::Details_Del(std::string_view strDetailsDsn, std::string_view strFldArtDsn) const {
    families::remove_detail(session(), families::Details, strDetailsDsn, strFldArtDsn);
}

void Families::Details_Set(std::string_view strDetailsDsn, std::string_view strFldArtDsn,
                           std::string_view strValue, std::string_view strAcl,
                           std::string_view strLinkDsn) const {
    families::set_detail(session(), families::Details, strDetailsDsn, strFldArtDsn, strValue,
                         strAcl, strLinkDsn);
}

std::string Families::Details_Get(std::string_view strDetailsDsn,
                                  std::string_view strFldArtDsn) const {
    return families::get_detail(session(), families::Details, strDetailsDsn, strFldArtDsn);
}

void Families::Details_SetOptionDsn(std::string_view strDetailsDsn, std::string_view strFldArtDsn,
                                    std::string_view strOpDsn, std::string_view strAcl) const {
    families::set_option(session(), families::Details, strDetailsDsn, strFldArtDsn, strOpDsn,
                         strAcl);
}

std::string Families::Details_GetOptionDsn(std::string_view strDetailsDsn,
                                           std::string_view strFldArtDsn) const {
    return families::get_option(session(), families::Details, strDetailsDsn, strFldArtDsn);
}

RecordSet Families::Details_FindByName(std::string_view strDetailsOberbegriff) const {
    return families::find_by_name(session(), families::Details, strDetailsOberbegriff);
}

std::string Families::Details_FindDsnByName(std::string_view strDetailsOberbegriff) const {
    return families::find_key_by_name(session(), families::Details, strDetailsOberbegriff);
}

RecordSet Families::MKM_Find(std::string_view strWhere, std::string_view strOderBy) const {
    return families::find(session(), families::MKM, strWhere, strOderBy);
}

std::string Families::MKM_FindDSN(std::string_view strWhere, std::string_view strOderBy) const {
    return families::find_key(session(), families::MKM, strWhere, strOderBy);
}

RecordSet Families::MKM_FindByDSN(std::string_view strDsn) const {
    return families::find_by_key(session(), families::MKM, strDsn);
}

bool Families::MKM_Delete(const RecordSet& rsMkm) const {
    return families::remove(session(), families::MKM, rsMkm);
}

bool Families::MKM_DeleteByDsn(std::string_view strDsn) const {
    return families::remove_by_key(session(), families::MKM, strDsn);
}

void Families::MKM_Update(RecordSet& rsMkm) const {
    families::update(session(), families::MKM, rsMkm);
}

RecordSet Families::MKM_FindByName(std::string_view strMerkmalName) const {
    return families::find_by_name(session(), families::MKM, strMerkmalName);
}

std::string Families::MKM_FindDsnByName(std::string_view strMerkmalName) const {
    return families::find_key_by_name(session(), families::MKM, strMerkmalName);
}

std::string Families::MKM_NameByDSN(std::string_view strDsn) const {
    return families::name_of_key(session(), families::MKM, strDsn);
}

std::string Families::MKM_NameByDSNList(std::string_view strDsnCommaList) const {
    return families::last_name(session(), families::MKM, strDsnCommaList);
}

RecordSet Families::EMSK_Find(std::string_view strWhere, std::string_view strOderBy) const {
    return families::find(session(), families::EMSK, strWhere, strOderBy);
}

std::string Families::EMSK_FindDSN(std::string_view strWhere, std::string_view strOderBy) const {
    return families::find_key(session(), families::EMSK, strWhere, strOderBy);
}

RecordSet Families::EMSK_FindByDSN(std::string_view strDsn) const {
    return families::find_by_key(session(), families::EMSK, strDsn);
}

bool Families::EMSK_Delete(const RecordSet& rsEmsk) const {
    return families::remove(session(), families::EMSK, rsEmsk);
}

bool Families::EMSK_DeleteByDsn(std::string_view strDsn) const {
    return families::remove_by_key(session(), families::EMSK, strDsn);
}

void Families::EMSK_Update(RecordSet& rsEmsk) const {
    families::update(session(), families::EMSK, rsEmsk);
}

RecordSet Families::EMSK_FindByName(std::string_view strEmskName) const {
    return families::find_by_name(session(), families::EMSK, strEmskName);
}

std::string Families::EMSK_FindDsnByName(std::string_view strEmskName) const {
    return families::find_key_by_name(session(), families::EMSK, strEmskName);
}

std::string Families::EMSK_NameByDSN(std::string_view strDsn) const {
    return families::name_of_key(session(), families::EMSK, strDsn);
}

std::string Families::EMSK_NameByDSNList(std::string_view strDsnCommaList) const {
    return families::names(session(), families::EMSK, strDsnCommaList);
}

RecordSet Families::FldArt_Find(std::string_view strWhere, std::string_view strOderBy) const {
    return families::find(session(), families::FldArt, strWhere, strOderBy);
}

std::string Families::FldArt_FindDSN(std::string_view strWhere, std::string_view strOderBy) const {
    return families::find_key(session(), families::FldArt, strWhere, strOderBy);
}

RecordSet Families::FldArt_FindByDSN(std::string_view strDsn) const {
    return families::find_by_key(session(), families::FldArt, strDsn);
}

bool Families::FldArt_Delete(const RecordSet& rsFldArt) const {
    return families::remove(session(), families::FldArt, rsFldArt);
}

bool Families::FldArt_DeleteByDsn(std::string_view strDsn) const {
    return families::remove_by_key(session(), families::FldArt, strDsn);
}

void Families::FldArt_Update(RecordSet& rsFldArt) const {
    families::update(session(), families::FldArt, rsFldArt);
}

RecordSet Families::FldArt_FindByName(std::string_view strFldArtKuerzel) const {
    return families::find_by_name(session(), families::FldArt, strFldArtKuerzel);
}

std::string Families::FldArt_FindDsnByName(std::string_view strFldArtKuerzel) const {
    return families::find_key_by_name(session(), families::FldArt, strFldArtKuerzel);
}

std::string Families::FldArt_NameByDSN(std::string_view strDsn) const {
    return families::name_of_key(session(), families::FldArt, strDsn);
}

std::string Families::FldArt_NameByDSNList(std::string_view strDsnCommaList) const {
    return families::names(session(), families::FldArt, strDsnCommaList);
}

RecordSet Families::FldArtOp_Find(std::string_view strWhere, std::string_view strOderBy) const {
    return families::find(session(), families::FldArtOp, strWhere, strOderBy);
}

std::string Families::FldArtOp_FindDSN(std::string_view strWhere,
                                       std::string_view strOderBy) const {
    return families::find_key(session(), families::FldArtOp, strWhere, strOderBy);
}

RecordSet Families::FldArtOp_FindByDSN(std::string_view strDsn) const {
    return families::find_by_key(session(), families::FldArtOp, strDsn);
}

bool Families::FldArtOp_Delete(const RecordSet& rsFldArtOp) const {
    return families::remove(session(), families::FldArtOp, rsFldArtOp);
}

bool Families::FldArtOp_DeleteByDsn(std::string_view strDsn) const {
    return families::remove_by_key(session(), families::FldArtOp, strDsn);
}

void Families::FldArtOp_Update(RecordSet& rsFldArtOp) const {
    families::update(session(), families::FldArtOp, rsFldArtOp);
}

RecordSet Families::FldArtOp_FindByName(std::string_view strFldArtDsn,
                                        std::string_view strFldArtOpBezeichnung) const {
    return families::find_by_name_within(session(), families::FldArtOp, strFldArtDsn,
                                         strFldArtOpBezeichnung);
}

std::string Families::FldArtOp_FindDsnByName(std::string_view strFldArtDsn,
                                             std::string_view strFldArtOpBezeichnung) const {
    return families::find_key_by_name_within(session(), families::FldArtOp, strFldArtDsn,
                                             strFldArtOpBezeichnung);
}

std::string Families::FldArtOp_NameByDSN(std::string_view strDsn) const {
    return families::name_of_key(session(), families::FldArtOp, strDsn);
}

std::string Families::FldArtOp_NameByDSNList(std::string_view strDsnCommaList) const {
    return families::last_name(session(), families::FldArtOp, strDsnCommaList);
}

RecordSet Families::AKTART_Find(std::string_view strWhere, std::string_view strOderBy) const {
    return families::find(session(), families::AKTART, strWhere, strOderBy);
}

std::string Families::AKTART_FindDSN(std::string_view strWhere, std::string_view strOderBy) const {
    return families::find_key(session(), families::AKTART, strWhere, strOderBy);
}

RecordSet Families::AKTART_FindByDSN(std::string_view strDsn) const {
    return families::find_by_key(session(), families::AKTART, strDsn);
}

bool Families::AKTART_Delete(const RecordSet& rsAktArt) const {
    return families::remove(session(), families::AKTART, rsAktArt);
}

bool Families::AKTART_DeleteByDsn(std::string_view strDsn) const {
    return families::remove_by_key(session(), families::AKTART, strDsn);
}

void Families::AKTART_Update(RecordSet& rsAktArt) const {
    families::update(session(), families::AKTART, rsAktArt);
}

RecordSet Families::AKTART_FindByName(std::string_view strAktivitaetenartName) const {
    return families::find_by_name(session(), families::AKTART, strAktivitaetenartName);
}

std::string Families::AKTART_FindDsnByName(std::string_view strAktivitaetenartName) const {
    return families::find_key_by_name(session(), families::AKTART, strAktivitaetenartName);
}

std::string Families::AKTART_NameByDSN(std::string_view strDsn) const {
    return families::name_of_key(session(), families::AKTART, strDsn);
}

std::string Families::AKTART_NameByDSNList(std::string_view strDsnCommaList) const {
    return families::last_name(session(), families::AKTART, strDsnCommaList);
}

}  // namespace cvdeveloper
