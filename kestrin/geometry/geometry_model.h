#pragma once

/// @file
/// What a Geometry file says: the board, its stack-up, and the panels, components, generic parts, pins, vias
/// and drawings. Every geometry has its name, the unit of its lengths ("MM", "IN", "MIL", "CM" or empty), its
/// drawing objects, its texts and the geometries that it adds. Lists and records are never null; members
/// named spare, unset or reserved are there for the host's sake, and nothing fills them.

#include <cstdint>
#include <memory>

#include "kestrin/base/export.h"
#include "kestrin/framework/string.h"
#include "kestrin/framework/string_array.h"
#include "kestrin/geometry/draw_objects.h"
#include "kestrin/geometry/geometry_records.h"
#include "kestrin/geometry/geometry_text.h"
#include "kestrin/geometry/number_list.h"
#include "kestrin/records/ownership.h"
#include "kestrin/records/pooled_record.h"

namespace kestrin {

/// The board.
class CMGeomBoard : private OwnedLists<17> {
 public:
  int m_nRoutingLayers = 0;  ///< how many there are
  CString m_sName;
  CString m_sUnits;
  CMGeomDrawObjArray* m_pDrawObjs = MakeList();
  RecordArray<CMGeomText>* m_pTexts = MakeList();
  RecordArray<CMGeomAdd>* m_pAdds = MakeList();
  CString m_sDefaultPadstack;                                     ///< the name of a padstack
  CString m_sDefaultVia;                                          ///< the name of a via
  double m_dPlacementClearance = 0.0;                             ///< between components
  NumberArray* m_pPlacementOutline = MakeList();                  ///< flat
  NumberArray* m_pRoutingOutline = MakeList();                    ///< flat
  CStringArray* m_pPowerNetNames = MakeList();                    ///< without apostrophes
  RecordArray<CMGeomKeepout>* m_pPlacementKeepouts = MakeList();  ///< for components
  RecordArray<CMGeomKeepout>* m_pSpareKeepouts1 = MakeList();
  RecordArray<CMGeomKeepout>* m_pRoutingKeepouts = MakeList();
  RecordArray<CMGeomKeepout>* m_pSpareKeepouts2 = MakeList();
  RecordArray<CMGeomKeepout>* m_pSpareKeepouts3 = MakeList();
  RecordArray<CMGeomKeepout>* m_pSpareKeepouts4 = MakeList();
  RecordArray<CMGeomMechanicalParts>* m_pMechanicalParts = MakeList();     ///< spare
  RecordArray<CMGeomPlacementRegion>* m_pPlacementRegions = MakeList();    ///< for components
  RecordArray<CMGeomRoutingDirection>* m_pRoutingDirections = MakeList();  ///< spare
  RecordArray<CMGeomDrill>* m_pDrills = MakeList();
  RecordArray<CMGeomDrill>* m_pUnplatedDrills = MakeList();
};

/// A package that the netlist's components use.
class CMGeomComponent : public PooledRecord, private OwnedLists<14> {
 public:
  CMGeomDrawObjArray* m_pDrawObjs = MakeList();
  CString m_sName;
  CString m_sUnits;
  std::int64_t m_nSpare1 = 0;
  std::int64_t m_nSpare2 = 0;
  RecordArray<CMGeomText>* m_pTexts = MakeList();
  RecordArray<CMGeomAdd>* m_pAdds = MakeList();
  std::int64_t m_nUnset1 = 0;
  std::int64_t m_nUnset2 = 0;
  double m_dHeight = 0.0;                                                  ///< in its unit
  NumberArray* m_pBodyOutline = MakeList();                                ///< flat
  RecordArray<CMGeomPlacementOutline>* m_pPlacementOutlines = MakeList();  ///< a record per line
  CStringArray* m_pSpareStrings = MakeList();
  CString m_sSpare;
  CString m_sDefaultPadstack;  ///< the name of a padstack
  std::int64_t m_nUnset3 = 0;
  CString m_sLayoutSurface = "both";                               ///< as the file has it
  CString m_sLayoutType;                                           ///< as the file has it
  int m_bOutlineOverhang = 0;                                      ///< 1 when the file says yes, else 0
  RecordArray<CMGeomOverride>* m_pPadstackOverrides = MakeList();  ///< pins with a padstack of their own
  RecordArray<CMGeomOverride>* m_pSpareOverrides = MakeList();
  RecordArray<CMGeomPinDef>* m_pPinDefs = MakeList();  ///< its pins
  CString m_sComponentType;                            ///< as the file has it
  RecordArray<CMGeomDrill>* m_pDrills = MakeList();
  RecordArray<CMGeomDrill>* m_pUnplatedDrills = MakeList();
  RecordArray<CMGeomKeepout>* m_pRoutingKeepouts = MakeList();
  RecordArray<CMGeomKeepout>* m_pTraceKeepouts = MakeList();
  RecordArray<CMGeomKeepout>* m_pViaKeepouts = MakeList();
};

/// A part without pins of the netlist: a mounting hole, a fiducial.
class CMGeomGenericPart : public PooledRecord, private OwnedLists<9> {
 public:
  CString m_sName;
  CString m_sUnits;
  CString m_sSpare;
  CString m_sSpare2;
  CMGeomDrawObjArray* m_pDrawObjs = MakeList();
  std::int64_t m_nUnset = 0;
  CMGeomPlacementOutline* m_pPlacementOutline = &placementOutline_;  ///< without a name
  RecordArray<CMGeomText>* m_pTexts = MakeList();
  NumberArray* m_pBodyOutline = MakeList();  ///< flat
  RecordArray<CMGeomDrill>* m_pUnplatedDrills = MakeList();
  RecordArray<CMGeomDrill>* m_pDrills = MakeList();
  RecordArray<CMGeomKeepout>* m_pRoutingKeepouts = MakeList();
  RecordArray<CMGeomKeepout>* m_pTraceKeepouts = MakeList();
  RecordArray<CMGeomKeepout>* m_pViaKeepouts = MakeList();
  RecordArray<CMGeomAdd>* m_pAdds = MakeList();

 private:
  CMGeomPlacementOutline placementOutline_;
};

/// A drawing.
class CMGeomDrawing : public PooledRecord, private OwnedLists<3> {
 public:
  CMGeomDrawObjArray* m_pDrawObjs = MakeList();
  CString m_sName;
  std::int64_t m_nUnset = 0;
  CString m_sUnits;
  RecordArray<CMGeomText>* m_pTexts = MakeList();
  RecordArray<CMGeomAdd>* m_pAdds = MakeList();
};

/// The padstack of a pin.
class CMGeomPin : public PooledRecord, private OwnedLists<3> {
 public:
  CMGeomDrawObjArray* m_pDrawObjs = MakeList();
  int m_nTerminalType = 1;  ///< 1 thru-hole, 2 surface, 3 blind
  CString m_sName;
  CString m_sUnits;
  std::int64_t m_nSpare1 = 0;
  std::int64_t m_nSpare2 = 0;
  double m_dDrillSize = 0.0;  ///< of the hole, 0 when none is given
  RecordArray<CMGeomText>* m_pTexts = MakeList();
  RecordArray<CMGeomAdd>* m_pAdds = MakeList();
};

/// The padstack of a via.
class CMGeomVia : public PooledRecord, private OwnedLists<3> {
 public:
  int m_nViaType = 0;  ///< 0 not said, 1 thru, 2 buried, 3 segment, 4 two-layer
  CString m_sName;
  CString m_sUnits;
  std::int64_t m_nUnset1 = 0;
  std::int64_t m_nUnset2 = 0;
  double m_dDrillSize = 0.0;  ///< of the hole, 0 when none is given
  CMGeomDrawObjArray* m_pDrawObjs = MakeList();
  RecordArray<CMGeomAdd>* m_pAdds = MakeList();
  RecordArray<CMGeomText>* m_pTexts = MakeList();
};

/// Several boards on one sheet.
class KESTRIN_EXPORT CMGeomPanel : public PooledRecord, private OwnedLists<5> {
 public:
  CMGeomPanel() = default;
  CMGeomPanel(const CMGeomPanel&) = delete;
  CMGeomPanel& operator=(const CMGeomPanel&) = delete;
  virtual ~CMGeomPanel();

  CString m_sName;
  CString m_sUnits;
  CMGeomDrawObjArray* m_pDrawObjs = MakeList();
  RecordArray<CMGeomAdd>* m_pAdds = MakeList();
  RecordArray<CMGeomText>* m_pTexts = MakeList();
  RecordArray<CMGeomDrill>* m_pDrills = MakeList();
  RecordArray<CMGeomDrill>* m_pUnplatedDrills = MakeList();
};

/// One layer definition of the stack-up. Copies share the values.
class KESTRIN_EXPORT CMGeomLayerDEF {
  std::shared_ptr<CStringArray> values_ = std::make_shared<CStringArray>();

 public:
  CMGeomLayerDEF();
  CMGeomLayerDEF(const CMGeomLayerDEF&);
  CMGeomLayerDEF& operator=(const CMGeomLayerDEF&);
  ~CMGeomLayerDEF();

  std::int64_t m_nUnset1 = 0;
  CStringArray* m_pValues = values_.get();  ///< of its line, but for those in brackets
  std::int64_t m_nUnset2 = 0;
  std::int64_t m_nUnset3 = 0;
  std::int64_t m_nUnset4 = 0;
  int m_nSpare = 0;
  CString m_sDefinition;  ///< the attribute that made it, in upper case
};

/// The layer definitions of the board. Copies share them.
class KESTRIN_EXPORT CMGeomStackup {
  std::shared_ptr<RecordArray<CMGeomLayerDEF>> layers_ =
      std::make_shared<Owning<RecordArray<CMGeomLayerDEF>>>();

 public:
  CMGeomStackup();
  CMGeomStackup(const CMGeomStackup&);
  CMGeomStackup& operator=(const CMGeomStackup&);
  ~CMGeomStackup();

  CString m_sName;
  CString m_sUnits;
  RecordArray<CMGeomLayerDEF>* m_pLayers = layers_.get();  ///< from the last create command on
};

/// The root of a Geometry file. Copies share everything; it goes with the last copy. Lists are in file order.
class KESTRIN_EXPORT CMGeom {
  /// What copies share. Members are destroyed last first: the board, the stack-up, the panels, the
  /// components, the pins, the vias, the drawings, the generic parts.
  struct Contents {
    Owning<RecordArray<CMGeomGenericPart>> genericParts;
    Owning<RecordArray<CMGeomDrawing>> drawings;
    Owning<RecordArray<CMGeomVia>> vias;
    Owning<RecordArray<CMGeomPin>> pins;
    Owning<RecordArray<CMGeomComponent>> components;
    Owning<RecordArray<CMGeomPanel>> panels;
    CMGeomStackup stackup;
    CMGeomBoard board;
  };
  std::shared_ptr<Contents> contents_ = std::make_shared<Contents>();

 public:
  CMGeom();
  CMGeom(const CMGeom&);
  CMGeom& operator=(const CMGeom&);
  ~CMGeom();

  void* m_pReserved1 = nullptr;
  void* m_pReserved2 = nullptr;
  void* m_pReserved3 = nullptr;
  void* m_pReserved4 = nullptr;
  CMGeomBoard* m_pBoard = &contents_->board;  ///< the one board, there also when the file has none
  RecordArray<CMGeomComponent>* m_pComponents = &contents_->components;  ///< the packages
  CMGeomStackup* m_pStackup = &contents_->stackup;                       ///< the one stack-up, likewise
  RecordArray<CMGeomPin>* m_pPins = &contents_->pins;                    ///< padstacks of pins
  RecordArray<CMGeomVia>* m_pVias = &contents_->vias;                    ///< padstacks of vias
  RecordArray<CMGeomDrawing>* m_pDrawings = &contents_->drawings;        ///< the drawings
  RecordArray<CMGeomGenericPart>* m_pGenericParts =
      &contents_->genericParts;                              ///< mounting holes, fiducials and the like
  RecordArray<CMGeomPanel>* m_pPanels = &contents_->panels;  ///< the panels
};

}  // namespace kestrin
