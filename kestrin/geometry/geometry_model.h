#pragma once

/// @file
/// The model of a Geometry file: the board, its stack-up, and the panels, components, generic parts, pins,
/// vias and drawings.
///
///     for (const CMGeomComponent* component : *geom->m_pComponents) {
///       Draw(component->m_sName, *component->m_pDrawObjs);
///     }
///
/// All lengths of a geometry are in its unit, m_sUnits. Coordinate lists are flat: x, y, x, y, ... Lists are
/// in file order. No pointer to a list or a record is null, except the reserved ones. Members named spare,
/// unset or reserved are never filled; they keep the layout that hosts expect.

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
  int m_nRoutingLayers = 0;  ///< the number of routing layers
  CString m_sName;           ///< its name
  CString m_sUnits;          ///< the unit of its lengths: "MM", "IN", "MIL", "CM" or empty
  CMGeomDrawObjArray* m_pDrawObjs = MakeList();                   ///< its drawing objects
  RecordArray<CMGeomText>* m_pTexts = MakeList();                 ///< its texts
  RecordArray<CMGeomAdd>* m_pAdds = MakeList();                   ///< the geometries placed on it
  CString m_sDefaultPadstack;                                     ///< the name of a CMGeomPin
  CString m_sDefaultVia;                                          ///< the name of a CMGeomVia
  double m_dPlacementClearance = 0.0;                             ///< the clearance between components
  NumberArray* m_pPlacementOutline = MakeList();                  ///< coordinates
  NumberArray* m_pRoutingOutline = MakeList();                    ///< coordinates
  CStringArray* m_pPowerNetNames = MakeList();                    ///< names of nets, without apostrophes
  RecordArray<CMGeomKeepout>* m_pPlacementKeepouts = MakeList();  ///< where no component may be placed
  RecordArray<CMGeomKeepout>* m_pSpareKeepouts1 = MakeList();
  RecordArray<CMGeomKeepout>* m_pRoutingKeepouts = MakeList();  ///< where nothing may be routed
  RecordArray<CMGeomKeepout>* m_pSpareKeepouts2 = MakeList();
  RecordArray<CMGeomKeepout>* m_pSpareKeepouts3 = MakeList();
  RecordArray<CMGeomKeepout>* m_pSpareKeepouts4 = MakeList();
  RecordArray<CMGeomMechanicalParts>* m_pMechanicalParts = MakeList();     ///< never filled
  RecordArray<CMGeomPlacementRegion>* m_pPlacementRegions = MakeList();    ///< where components may be placed
  RecordArray<CMGeomRoutingDirection>* m_pRoutingDirections = MakeList();  ///< never filled
  RecordArray<CMGeomDrill>* m_pDrills = MakeList();                        ///< plated holes
  RecordArray<CMGeomDrill>* m_pUnplatedDrills = MakeList();                ///< unplated holes
};

/// A package that components of the Neutral file use.
class CMGeomComponent : public PooledRecord, private OwnedLists<14> {
 public:
  CMGeomDrawObjArray* m_pDrawObjs = MakeList();  ///< its drawing objects
  CString m_sName;                               ///< its name
  CString m_sUnits;  ///< the unit of its lengths: "MM", "IN", "MIL", "CM" or empty
  std::int64_t m_nSpare1 = 0;
  std::int64_t m_nSpare2 = 0;
  RecordArray<CMGeomText>* m_pTexts = MakeList();  ///< its texts
  RecordArray<CMGeomAdd>* m_pAdds = MakeList();    ///< the geometries placed on it
  std::int64_t m_nUnset1 = 0;
  std::int64_t m_nUnset2 = 0;
  double m_dHeight = 0.0;                    ///< the height
  NumberArray* m_pBodyOutline = MakeList();  ///< coordinates
  RecordArray<CMGeomPlacementOutline>* m_pPlacementOutlines =
      MakeList();  ///< the areas it takes, one per line
  CStringArray* m_pSpareStrings = MakeList();
  CString m_sSpare;
  CString m_sDefaultPadstack;  ///< the name of a CMGeomPin
  std::int64_t m_nUnset3 = 0;
  CString m_sLayoutSurface = "both";                               ///< the word of the file
  CString m_sLayoutType;                                           ///< the word of the file
  int m_bOutlineOverhang = 0;                                      ///< 1 if the file says yes, else 0
  RecordArray<CMGeomOverride>* m_pPadstackOverrides = MakeList();  ///< exceptions to the default padstack
  RecordArray<CMGeomOverride>* m_pSpareOverrides = MakeList();
  RecordArray<CMGeomPinDef>* m_pPinDefs = MakeList();           ///< its pins
  CString m_sComponentType;                                     ///< the word of the file
  RecordArray<CMGeomDrill>* m_pDrills = MakeList();             ///< plated holes
  RecordArray<CMGeomDrill>* m_pUnplatedDrills = MakeList();     ///< unplated holes
  RecordArray<CMGeomKeepout>* m_pRoutingKeepouts = MakeList();  ///< where nothing may be routed
  RecordArray<CMGeomKeepout>* m_pTraceKeepouts = MakeList();    ///< where no track may be
  RecordArray<CMGeomKeepout>* m_pViaKeepouts = MakeList();      ///< where no via may be
};

/// A part without pins in the netlist, such as a mounting hole or a fiducial.
class CMGeomGenericPart : public PooledRecord, private OwnedLists<9> {
 public:
  CString m_sName;   ///< its name
  CString m_sUnits;  ///< the unit of its lengths: "MM", "IN", "MIL", "CM" or empty
  CString m_sSpare;
  CString m_sSpare2;
  CMGeomDrawObjArray* m_pDrawObjs = MakeList();  ///< its drawing objects
  std::int64_t m_nUnset = 0;
  CMGeomPlacementOutline* m_pPlacementOutline = &placementOutline_;  ///< the area it takes; has no name
  RecordArray<CMGeomText>* m_pTexts = MakeList();                    ///< its texts
  NumberArray* m_pBodyOutline = MakeList();                          ///< coordinates
  RecordArray<CMGeomDrill>* m_pUnplatedDrills = MakeList();          ///< unplated holes
  RecordArray<CMGeomDrill>* m_pDrills = MakeList();                  ///< plated holes
  RecordArray<CMGeomKeepout>* m_pRoutingKeepouts = MakeList();       ///< where nothing may be routed
  RecordArray<CMGeomKeepout>* m_pTraceKeepouts = MakeList();         ///< where no track may be
  RecordArray<CMGeomKeepout>* m_pViaKeepouts = MakeList();           ///< where no via may be
  RecordArray<CMGeomAdd>* m_pAdds = MakeList();                      ///< the geometries placed on it

 private:
  CMGeomPlacementOutline placementOutline_;
};

/// A drawing, such as an assembly drawing.
class CMGeomDrawing : public PooledRecord, private OwnedLists<3> {
 public:
  CMGeomDrawObjArray* m_pDrawObjs = MakeList();  ///< its drawing objects
  CString m_sName;                               ///< its name
  std::int64_t m_nUnset = 0;
  CString m_sUnits;  ///< the unit of its lengths: "MM", "IN", "MIL", "CM" or empty
  RecordArray<CMGeomText>* m_pTexts = MakeList();  ///< its texts
  RecordArray<CMGeomAdd>* m_pAdds = MakeList();    ///< the geometries placed on it
};

/// A padstack for pins.
class CMGeomPin : public PooledRecord, private OwnedLists<3> {
 public:
  CMGeomDrawObjArray* m_pDrawObjs = MakeList();  ///< its drawing objects
  int m_nTerminalType = 1;                       ///< 1 thru-hole, 2 surface, 3 blind
  CString m_sName;                               ///< its name
  CString m_sUnits;  ///< the unit of its lengths: "MM", "IN", "MIL", "CM" or empty
  std::int64_t m_nSpare1 = 0;
  std::int64_t m_nSpare2 = 0;
  double m_dDrillSize = 0.0;                       ///< the size of the hole; 0 if the file does not give it
  RecordArray<CMGeomText>* m_pTexts = MakeList();  ///< its texts
  RecordArray<CMGeomAdd>* m_pAdds = MakeList();    ///< the geometries placed on it
};

/// A padstack for vias.
class CMGeomVia : public PooledRecord, private OwnedLists<3> {
 public:
  int m_nViaType = 0;  ///< 0 not given, 1 thru, 2 buried, 3 segment, 4 two-layer
  CString m_sName;     ///< its name
  CString m_sUnits;    ///< the unit of its lengths: "MM", "IN", "MIL", "CM" or empty
  std::int64_t m_nUnset1 = 0;
  std::int64_t m_nUnset2 = 0;
  double m_dDrillSize = 0.0;                       ///< the size of the hole; 0 if the file does not give it
  CMGeomDrawObjArray* m_pDrawObjs = MakeList();    ///< its drawing objects
  RecordArray<CMGeomAdd>* m_pAdds = MakeList();    ///< the geometries placed on it
  RecordArray<CMGeomText>* m_pTexts = MakeList();  ///< its texts
};

/// A panel: several boards on one sheet.
class KESTRIN_TYPE CMGeomPanel : public PooledRecord, private OwnedLists<5> {
 public:
  CMGeomPanel() = default;
  CMGeomPanel(const CMGeomPanel&) = delete;
  CMGeomPanel& operator=(const CMGeomPanel&) = delete;
  KESTRIN_EXPORT virtual ~CMGeomPanel();

  CString m_sName;   ///< its name
  CString m_sUnits;  ///< the unit of its lengths: "MM", "IN", "MIL", "CM" or empty
  CMGeomDrawObjArray* m_pDrawObjs = MakeList();              ///< its drawing objects
  RecordArray<CMGeomAdd>* m_pAdds = MakeList();              ///< the geometries placed on it
  RecordArray<CMGeomText>* m_pTexts = MakeList();            ///< its texts
  RecordArray<CMGeomDrill>* m_pDrills = MakeList();          ///< plated holes
  RecordArray<CMGeomDrill>* m_pUnplatedDrills = MakeList();  ///< unplated holes
};

/// A layer definition of the stack-up. Copies share the values.
class KESTRIN_EXPORT CMGeomLayerDEF : public PooledRecord {
  std::shared_ptr<CStringArray> values_ = std::make_shared<CStringArray>();

 public:
  CMGeomLayerDEF();
  CMGeomLayerDEF(const CMGeomLayerDEF&);
  CMGeomLayerDEF& operator=(const CMGeomLayerDEF&);
  ~CMGeomLayerDEF();

  std::int64_t m_nUnset1 = 0;
  CStringArray* m_pValues = values_.get();  ///< the values after the name, except empty and bracketed ones
  std::int64_t m_nUnset2 = 0;
  std::int64_t m_nUnset3 = 0;
  std::int64_t m_nUnset4 = 0;
  int m_nSpare = 0;
  CString m_sDefinition;  ///< the name of the attribute, in upper case
};

/// The stack-up of the board. Copies share the layer definitions.
class KESTRIN_EXPORT CMGeomStackup {
  std::shared_ptr<RecordArray<CMGeomLayerDEF>> layers_ =
      std::make_shared<Owning<RecordArray<CMGeomLayerDEF>>>();

 public:
  CMGeomStackup();
  CMGeomStackup(const CMGeomStackup&);
  CMGeomStackup& operator=(const CMGeomStackup&);
  ~CMGeomStackup();

  CString m_sName;   ///< its name
  CString m_sUnits;  ///< the unit of its lengths: "MM", "IN", "MIL", "CM" or empty
  RecordArray<CMGeomLayerDEF>* m_pLayers = layers_.get();  ///< those after the last $$create_stackup
};

/// The root of a Geometry file. Copies share the contents, which are destroyed with the last copy.
class KESTRIN_EXPORT CMGeom {
  /// What copies share. Destroyed from last to first: hosts rely on the order board, stack-up, panels,
  /// components, pins, vias, drawings, generic parts.
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
  CMGeomBoard* m_pBoard = &contents_->board;  ///< the board; empty if the file has none
  RecordArray<CMGeomComponent>* m_pComponents = &contents_->components;  ///< the packages
  CMGeomStackup* m_pStackup = &contents_->stackup;     ///< the stack-up; empty if the file has none
  RecordArray<CMGeomPin>* m_pPins = &contents_->pins;  ///< the padstacks of pins
  RecordArray<CMGeomVia>* m_pVias = &contents_->vias;  ///< the padstacks of vias
  RecordArray<CMGeomDrawing>* m_pDrawings = &contents_->drawings;  ///< the drawings
  RecordArray<CMGeomGenericPart>* m_pGenericParts =
      &contents_->genericParts;                              ///< mounting holes, fiducials and the like
  RecordArray<CMGeomPanel>* m_pPanels = &contents_->panels;  ///< the panels
};

}  // namespace kestrin
