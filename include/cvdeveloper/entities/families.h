#pragma once

// Written by the target write_families from the rows in src/entities/families.

#include <string>
#include <string_view>

#include "cvdeveloper/data/session.h"

namespace cvdeveloper {

// The operations that every kind of record has: finding, changing, showing, features and
// details. Not found is "", false or an empty record set; errors are the host's.
class Families : public Topic {
  public:
    using Topic::Topic;

    // The activities' family.
    RecordSet AKT_Find(std::string_view strWhere, std::string_view strOderBy = {}) const;
    std::string AKT_FindDSN(std::string_view strWhere, std::string_view strOderBy = {}) const;
    RecordSet AKT_FindByDSN(std::string_view strDsn) const;
    RecordSet AKT_FindByKennung(std::string_view strKennung) const;
    std::string AKT_FindDsnByKennung(std::string_view strKennung) const;
    bool AKT_Delete(const RecordSet& rsAkt) const;
    bool AKT_DeleteByDsn(std::string_view strDsn) const;
    void AKT_Update(RecordSet& rsAkt) const;
    void AKT_Show(std::string_view strWhere) const;
    void AKT_ShowDSN(std::string_view strDsn) const;
    void AKT_Merkmal_Add(std::string_view strAktDsn, std::string_view strMkmDSNCommaList) const;
    void AKT_Merkmal_Del(std::string_view strAktDsn, std::string_view strMkmDSNCommaList) const;
    void AKT_Merkmal_Switch(std::string_view strAktDsn, std::string_view strMkmDsnOld,
                            std::string_view strMkmDsnNew) const;
    bool AKT_Merkmal_Contains(std::string_view strAktDsn, std::string_view strMkmDSN) const;
    std::string AKT_Merkmal_StdDsnCommaList() const;
    std::string AKT_Merkmal_Get(std::string_view strAktDsn) const;
    void AKT_Merkmal_Copy(std::string_view strSourceDsn, std::string_view strDestDsn) const;
    void AKT_Detail_Delete(std::string_view strAktDsn, std::string_view strFldArtDsn) const;
    void AKT_Detail_Set(std::string_view strAktDsn, std::string_view strFldArtDsn,
                        std::string_view strValue, std::string_view strAcl = "[NOTHING]",
                        std::string_view strLinkDsn = "[NOTHING]") const;
    std::string AKT_Detail_Get(std::string_view strAktDsn, std::string_view strFldArtDsn) const;
    void AKT_Detail_SetOptionDsn(std::string_view strAktDsn, std::string_view strFldArtDsn,
                                 std::string_view strOpDsn,
                                 std::string_view strAcl = "[NOTHING]") const;
    std::string AKT_Detail_GetOptionDsn(std::string_view strAktDsn,
                                        std::string_view strFldArtDsn) const;
    std::int32_t AKT_Detail_Copy(std::string_view strSourceDsn, std::string_view strDestDsn) const;

    // The property objects' family.
    RecordSet OBJ_Find(std::string_view strWhere, std::string_view strOderBy = {}) const;
    std::string OBJ_FindDSN(std::string_view strWhere, std::string_view strOderBy = {}) const;
    RecordSet OBJ_FindByDSN(std::string_view strDsn) const;
    RecordSet OBJ_FindByKennung(std::string_view strKennung) const;
    std::string OBJ_FindDsnByKennung(std::string_view strKennung) const;
    bool OBJ_Delete(const RecordSet& rsObj) const;
    bool OBJ_DeleteByDsn(std::string_view strDsn) const;
    void OBJ_Update(RecordSet& rsObj) const;
    void OBJ_Show(std::string_view strWhere) const;
    void OBJ_ShowDSN(std::string_view strDsn) const;
    void OBJ_Merkmal_Add(std::string_view strObjDsn, std::string_view strMkmDSNCommaList) const;
    void OBJ_Merkmal_Del(std::string_view strObjDsn, std::string_view strMkmDSNCommaList) const;
    void OBJ_Merkmal_Switch(std::string_view strObjDsn, std::string_view strMkmDsnOld,
                            std::string_view strMkmDsnNew) const;
    bool OBJ_Merkmal_Contains(std::string_view strObjDsn, std::string_view strMkmDSN) const;
    std::string OBJ_Merkmal_StdDsnCommaList() const;
    void OBJ_Detail_Delete(std::string_view strObjDsn, std::string_view strFldArtDsn) const;
    void OBJ_Detail_Set(std::string_view strObjDsn, std::string_view strFldArtDsn,
                        std::string_view strValue, std::string_view strAcl = "[NOTHING]",
                        std::string_view strLinkDsn = "[NOTHING]") const;
    std::string OBJ_Detail_Get(std::string_view strObjDsn, std::string_view strFldArtDsn) const;
    void OBJ_Detail_SetOptionDsn(std::string_view strObjDsn, std::string_view strFldArtDsn,
                                 std::string_view strOpDsn,
                                 std::string_view strAcl = "[NOTHING]") const;
    std::string OBJ_Detail_GetOptionDsn(std::string_view strObjDsn,
                                        std::string_view strFldArtDsn) const;

    // The projects' family.
    RecordSet PROJEKTE_Find(std::string_view strWhere, std::string_view strOderBy = {}) const;
    std::string PROJEKTE_FindDSN(std::string_view strWhere, std::string_view strOderBy = {}) const;
    RecordSet PROJEKTE_FindByDSN(std::string_view strDsn) const;
    RecordSet PROJEKTE_FindByKennung(std::string_view strKennung) const;
    std::string PROJEKTE_FindDsnByKennung(std::string_view strKennung) const;
    bool PROJEKTE_Delete(const RecordSet& rsProjekte) const;
    bool PROJEKTE_DeleteByDsn(std::string_view strDsn) const;
    void PROJEKTE_Update(RecordSet& rsProjekte) const;
    void PROJEKTE_Show(std::string_view strWhere) const;
    void PROJEKTE_ShowDSN(std::string_view strDsn) const;
    void PROJEKTE_Merkmal_Add(std::string_view strProjekteDsn,
                              std::string_view strMkmDSNCommaList) const;
    void PROJEKTE_Merkmal_Del(std::string_view strProjekteDsn,
                              std::string_view strMkmDSNCommaList) const;
    void PROJEKTE_Merkmal_Switch(std::string_view strProjekteDsn, std::string_view strMkmDsnOld,
                                 std::string_view strMkmDsnNew) const;
    bool PROJEKTE_Merkmal_Contains(std::string_view strProjekteDsn,
                                   std::string_view strMkmDSN) const;
    std::string PROJEKTE_Merkmal_StdDsnCommaList() const;
    void PROJEKTE_Detail_Delete(std::string_view strProjekteDsn,
                                std::string_view strFldArtDsn) const;
    void PROJEKTE_Detail_Set(std::string_view strProjekteDsn, std::string_view strFldArtDsn,
                             std::string_view strValue, std::string_view strAcl = "[NOTHING]",
                             std::string_view strLinkDsn = "[NOTHING]") const;
    std::string PROJEKTE_Detail_Get(std::string_view strProjekteDsn,
                                    std::string_view strFldArtDsn) const;
    void PROJEKTE_Detail_SetOptionDsn(std::string_view strProjekteDsn,
                                      std::string_view strFldArtDsn, std::string_view strOpDsn,
                                      std::string_view strAcl = "[NOTHING]") const;
    std::string PROJEKTE_Detail_GetOptionDsn(std::string_view strProjekteDsn,
                                             std::string_view strFldArtDsn) const;
    std::string PROJEKTE_FindDsnByName(std::string_view strProjektBezeichnung) const;

    // The requests' family.
    RecordSet ANF_Find(std::string_view strWhere, std::string_view strOderBy = {}) const;
    std::string ANF_FindDSN(std::string_view strWhere, std::string_view strOderBy = {}) const;
    RecordSet ANF_FindByDSN(std::string_view strDsn) const;
    RecordSet ANF_FindByKennung(std::string_view strKennung) const;
    std::string ANF_FindDsnByKennung(std::string_view strKennung) const;
    bool ANF_Delete(const RecordSet& rsAnf) const;
    bool ANF_DeleteByDsn(std::string_view strDsn) const;
    void ANF_Update(RecordSet& rsAnf) const;
    void ANF_Show(std::string_view strWhere) const;
    void ANF_ShowDSN(std::string_view strDsn) const;
    void ANF_Merkmal_Add(std::string_view strAnfDsn, std::string_view strMkmDSNCommaList) const;
    void ANF_Merkmal_Del(std::string_view strAnfDsn, std::string_view strMkmDSNCommaList) const;
    void ANF_Merkmal_Switch(std::string_view strAnfDsn, std::string_view strMkmDsnOld,
                            std::string_view strMkmDsnNew) const;
    bool ANF_Merkmal_Contains(std::string_view strAnfDsn, std::string_view strMkmDSN) const;
    std::string ANF_Merkmal_StdDsnCommaList() const;
    void ANF_Detail_Delete(std::string_view strAnfDsn, std::string_view strFldArtDsn) const;
    void ANF_Detail_Set(std::string_view strAnfDsn, std::string_view strFldArtDsn,
                        std::string_view strValue, std::string_view strAcl = "[NOTHING]",
                        std::string_view strLinkDsn = "[NOTHING]") const;
    std::string ANF_Detail_Get(std::string_view strAnfDsn, std::string_view strFldArtDsn) const;
    void ANF_Detail_SetOptionDsn(std::string_view strAnfDsn, std::string_view strFldArtDsn,
                                 std::string_view strOpDsn,
                                 std::string_view strAcl = "[NOTHING]") const;
    std::string ANF_Detail_GetOptionDsn(std::string_view strAnfDsn,
                                        std::string_view strFldArtDsn) const;

    // The case files' family.
    RecordSet AKTEN_Find(std::string_view strWhere, std::string_view strOderBy = {}) const;
    std::string AKTEN_FindDSN(std::string_view strWhere, std::string_view strOderBy = {}) const;
    RecordSet AKTEN_FindByDSN(std::string_view strDsn) const;
    RecordSet AKTEN_FindByKennung(std::string_view strKennung) const;
    std::string AKTEN_FindDsnByKennung(std::string_view strKennung) const;
    bool AKTEN_Delete(const RecordSet& rsAkten) const;
    bool AKTEN_DeleteByDsn(std::string_view strDsn) const;
    void AKTEN_Update(RecordSet& rsAkten) const;
    void AKTEN_Show(std::string_view strWhere) const;
    void AKTEN_ShowDSN(std::string_view strDsn) const;
    void AKTEN_Merkmal_Add(std::string_view strAktenDsn, std::string_view strMkmDSNCommaList) const;
    void AKTEN_Merkmal_Del(std::string_view strAktenDsn, std::string_view strMkmDSNCommaList) const;
    void AKTEN_Merkmal_Switch(std::string_view strAktenDsn, std::string_view strMkmDsnOld,
                              std::string_view strMkmDsnNew) const;
    bool AKTEN_Merkmal_Contains(std::string_view strAktenDsn, std::string_view strMkmDSN) const;
    std::string AKTEN_Merkmal_StdDsnCommaList() const;
    void AKTEN_Detail_Delete(std::string_view strAktenDsn, std::string_view strFldArtDsn) const;
    void AKTEN_Detail_Set(std::string_view strAktenDsn, std::string_view strFldArtDsn,
                          std::string_view strValue, std::string_view strAcl = "[NOTHING]",
                          std::string_view strLinkDsn = "[NOTHING]") const;
    std::string AKTEN_Detail_Get(std::string_view strAktenDsn, std::string_view strFldArtDsn) const;
    void AKTEN_Detail_SetOptionDsn(std::string_view strAktenDsn, std::string_view strFldArtDsn,
                                   std::string_view strOpDsn,
                                   std::string_view strAcl = "[NOTHING]") const;
    std::string AKTEN_Detail_GetOptionDsn(std::string_view strAktenDsn,
                                          std::string_view strFldArtDsn) const;

    // The contracts' family.
    RecordSet VERTRAEGE_Find(std::string_view strWhere, std::string_view strOderBy = {}) const;
    std::string VERTRAEGE_FindDSN(std::string_view strWhere, std::string_view strOderBy = {}) const;
    RecordSet VERTRAEGE_FindByDSN(std::string_view strDsn) const;
    RecordSet VERTRAEGE_FindByKennung(std::string_view strKennung) const;
    std::string VERTRAEGE_FindDsnByKennung(std::string_view strKennung) const;
    bool VERTRAEGE_Delete(const RecordSet& rsVertraege) const;
    bool VERTRAEGE_DeleteByDsn(std::string_view strDsn) const;
    void VERTRAEGE_Update(RecordSet& rsVertraege) const;
    void VERTRAEGE_Show(std::string_view strWhere) const;
    void VERTRAEGE_ShowDSN(std::string_view strDsn) const;
    void VERTRAEGE_Merkmal_Add(std::string_view strVertraegeDsn,
                               std::string_view strMkmDSNCommaList) const;
    void VERTRAEGE_Merkmal_Del(std::string_view strVertraegeDsn,
                               std::string_view strMkmDSNCommaList) const;
    void VERTRAEGE_Merkmal_Switch(std::string_view strVertraegeDsn, std::string_view strMkmDsnOld,
                                  std::string_view strMkmDsnNew) const;
    bool VERTRAEGE_Merkmal_Contains(std::string_view strVertraegeDsn,
                                    std::string_view strMkmDSN) const;
    std::string VERTRAEGE_Merkmal_StdDsnCommaList() const;
    void VERTRAEGE_Detail_Delete(std::string_view strVertraegeDsn,
                                 std::string_view strFldArtDsn) const;
    void VERTRAEGE_Detail_Set(std::string_view strVertraegeDsn, std::string_view strFldArtDsn,
                              std::string_view strValue, std::string_view strAcl = "[NOTHING]",
                              std::string_view strLinkDsn = "[NOTHING]") const;
    std::string VERTRAEGE_Detail_Get(std::string_view strVertraegeDsn,
                                     std::string_view strFldArtDsn) const;
    void VERTRAEGE_Detail_SetOptionDsn(std::string_view strVertraegeDsn,
                                       std::string_view strFldArtDsn, std::string_view strOpDsn,
                                       std::string_view strAcl = "[NOTHING]") const;
    std::string VERTRAEGE_Detail_GetOptionDsn(std::string_view strVertraegeDsn,
                                              std::string_view strFldArtDsn) const;

    // The addresses' family.
    RecordSet AD_Find(std::string_view strWhere, std::string_view strOderBy = {}) const;
    std::string AD_FindDSN(std::string_view strWhere, std::string_view strOderBy = {}) const;
    RecordSet AD_FindByDSN(std::string_view strDsn) const;
    RecordSet AD_FindByKennung(std::string_view strKennung) const;
    std::string AD_FindDsnByKennung(std::string_view strKennung) const;
    bool AD_Delete(const RecordSet& rsAd) const;
    bool AD_DeleteByDsn(std::string_view strDsn) const;
    void AD_Update(RecordSet& rsAd) const;
    void AD_Show(std::string_view strWhere) const;
    void AD_ShowDSN(std::string_view strDsn) const;
    void AD_Merkmal_Add(std::string_view strAdDsn, std::string_view strMkmDSNCommaList) const;
    void AD_Merkmal_Del(std::string_view strAdDsn, std::string_view strMkmDSNCommaList) const;
    void AD_Merkmal_Switch(std::string_view strAdDsn, std::string_view strMkmDsnOld,
                           std::string_view strMkmDsnNew) const;
    bool AD_Merkmal_Contains(std::string_view strAdDsn, std::string_view strMkmDSN) const;
    std::string AD_Merkmal_StdDsnCommaList() const;

    // The detail sheets' family.
    RecordSet Details_Find(std::string_view strWhere, std::string_view strOderBy = {}) const;
    std::string Details_FindDSN(std::string_view strWhere, std::string_view strOderBy = {}) const;
    RecordSet Details_FindByDSN(std::string_view strDsn) const;
    RecordSet Details_FindByKennung(std::string_view strKennung) const;
    std::string Details_FindDsnByKennung(std::string_view strKennung) const;
    bool Details_Delete(const RecordSet& rsDetails) const;
    bool Details_DeleteByDsn(std::string_view strDsn) const;
    void Details_Update(RecordSet& rsDetails) const;
    void Details_Show(std::string_view strWhere) const;
    void Details_ShowDSN(std::string_view strDsn) const;
    void Details_Merkmal_Add(std::string_view strDetailsDsn,
                             std::string_view strMkmDSNCommaList) const;
    void Details_Merkmal_Del(std::string_view strDetailsDsn,
                             std::string_view strMkmDSNCommaList) const;
    void Details_Merkmal_Switch(std::string_view strDetailsDsn, std::string_view strMkmDsnOld,
                                std::string_view strMkmDsnNew) const;
    bool Details_Merkmal_Contains(std::string_view strDetailsDsn, std::string_view strMkmDSN) const;
    std::string Details_Merkmal_StdDsnCommaList() const;
    void Details_Del(std::string_view strDetailsDsn, std::string_view strFldArtDsn) const;
    void Details_Set(std::string_view strDetailsDsn, std::string_view strFldArtDsn,
                     std::string_view strValue, std::string_view strAcl = "[NOTHING]",
                     std::string_view strLinkDsn = "[NOTHING]") const;
    std::string Details_Get(std::string_view strDetailsDsn, std::string_view strFldArtDsn) const;
    void Details_SetOptionDsn(std::string_view strDetailsDsn, std::string_view strFldArtDsn,
                              std::string_view strOpDsn,
                              std::string_view strAcl = "[NOTHING]") const;
    std::string Details_GetOptionDsn(std::string_view strDetailsDsn,
                                     std::string_view strFldArtDsn) const;
    RecordSet Details_FindByName(std::string_view strDetailsOberbegriff) const;
    std::string Details_FindDsnByName(std::string_view strDetailsOberbegriff) const;

    // The features' family.
    RecordSet MKM_Find(std::string_view strWhere, std::string_view strOderBy = {}) const;
    std::string MKM_FindDSN(std::string_view strWhere, std::string_view strOderBy = {}) const;
    RecordSet MKM_FindByDSN(std::string_view strDsn) const;
    bool MKM_Delete(const RecordSet& rsMkm) const;
    bool MKM_DeleteByDsn(std::string_view strDsn) const;
    void MKM_Update(RecordSet& rsMkm) const;
    RecordSet MKM_FindByName(std::string_view strMerkmalName) const;
    std::string MKM_FindDsnByName(std::string_view strMerkmalName) const;
    std::string MKM_NameByDSN(std::string_view strDsn) const;
    std::string MKM_NameByDSNList(std::string_view strDsnCommaList) const;

    // The entry masks' family.
    RecordSet EMSK_Find(std::string_view strWhere, std::string_view strOderBy = {}) const;
    std::string EMSK_FindDSN(std::string_view strWhere, std::string_view strOderBy = {}) const;
    RecordSet EMSK_FindByDSN(std::string_view strDsn) const;
    bool EMSK_Delete(const RecordSet& rsEmsk) const;
    bool EMSK_DeleteByDsn(std::string_view strDsn) const;
    void EMSK_Update(RecordSet& rsEmsk) const;
    RecordSet EMSK_FindByName(std::string_view strEmskName) const;
    std::string EMSK_FindDsnByName(std::string_view strEmskName) const;
    std::string EMSK_NameByDSN(std::string_view strDsn) const;
    std::string EMSK_NameByDSNList(std::string_view strDsnCommaList) const;

    // The field kinds' family.
    RecordSet FldArt_Find(std::string_view strWhere, std::string_view strOderBy = {}) const;
    std::string FldArt_FindDSN(std::string_view strWhere, std::string_view strOderBy = {}) const;
    RecordSet FldArt_FindByDSN(std::string_view strDsn) const;
    bool FldArt_Delete(const RecordSet& rsFldArt) const;
    bool FldArt_DeleteByDsn(std::string_view strDsn) const;
    void FldArt_Update(RecordSet& rsFldArt) const;
    RecordSet FldArt_FindByName(std::string_view strFldArtKuerzel) const;
    std::string FldArt_FindDsnByName(std::string_view strFldArtKuerzel) const;
    std::string FldArt_NameByDSN(std::string_view strDsn) const;
    std::string FldArt_NameByDSNList(std::string_view strDsnCommaList) const;

    // The options' family.
    RecordSet FldArtOp_Find(std::string_view strWhere, std::string_view strOderBy = {}) const;
    std::string FldArtOp_FindDSN(std::string_view strWhere, std::string_view strOderBy = {}) const;
    RecordSet FldArtOp_FindByDSN(std::string_view strDsn) const;
    bool FldArtOp_Delete(const RecordSet& rsFldArtOp) const;
    bool FldArtOp_DeleteByDsn(std::string_view strDsn) const;
    void FldArtOp_Update(RecordSet& rsFldArtOp) const;
    RecordSet FldArtOp_FindByName(std::string_view strFldArtDsn,
                                  std::string_view strFldArtOpBezeichnung) const;
    std::string FldArtOp_FindDsnByName(std::string_view strFldArtDsn,
                                       std::string_view strFldArtOpBezeichnung) const;
    std::string FldArtOp_NameByDSN(std::string_view strDsn) const;
    std::string FldArtOp_NameByDSNList(std::string_view strDsnCommaList) const;

    // The activity types' family.
    RecordSet AKTART_Find(std::string_view strWhere, std::string_view strOderBy = {}) const;
    std::string AKTART_FindDSN(std::string_view strWhere, std::string_view strOderBy = {}) const;
    RecordSet AKTART_FindByDSN(std::string_view strDsn) const;
    bool AKTART_Delete(const RecordSet& rsAktArt) const;
    bool AKTART_DeleteByDsn(std::string_view strDsn) const;
    void AKTART_Update(RecordSet& rsAktArt) const;
    RecordSet AKTART_FindByName(std::string_view strAktivitaetenartName) const;
    std::string AKTART_FindDsnByName(std::string_view strAktivitaetenartName) const;
    std::string AKTART_NameByDSN(std::string_view strDsn) const;
    std::string AKTART_NameByDSNList(std::string_view strDsnCommaList) const;

    // One topic for each family.
    static std::span<const TopicRows> topics();
};

}  // namespace cvdeveloper
