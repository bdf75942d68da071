#pragma once

/// @file
/// What a Geometry file says: the board, its stack-up, and the panels, components, generic parts, pins, vias
/// and drawings. Every geometry has its name, the unit of its lengths ("MM", "IN", "MIL", "CM" or empty), its
/// drawing objects, its texts and the geometries that it adds. Lists and records are never null; members
/// named spare, unset or reserved are there for the host's sake, and nothing fills them.

#include <cstdint>

#include "kestrin/geom/draw_objects.h"
#include "kestrin/geom/geom_records.h"
#include "kestrin/geom/geom_text.h"
#include "kestrin/geom/number_list.h"
#include "kestrin/geometry/ownership.h"
#include "kestrin/geometry/pooled_record.h"
#include "kestrin/platform/export.h"
#include "kestrin/platform/string.h"
#include "kestrin/platform/string_array.h"

namespace kestrin {

/// The board.
class CMGeomBoard {
 public:
  int m_nRoutingLayers = 0;  ///< how many there are
  CString m_sName;
  CString m_sUnits;
  Owned<CMGeomDrawObjArray> m_pDrawObjs;
  RecordList<CMGeomText> m_pTexts;
  RecordList<CMGeomAdd> m_pAdds;
  CString m_sDefaultPadstack;                      ///< the name of a padstack
  CString m_sDefaultVia;                           ///< the name of a via
  double m_dPlacementClearance = 0.0;              ///< between components
  NumberList m_pPlacementOutline;                  ///< flat
  NumberList m_pRoutingOutline;                    ///< flat
  Owned<CStringArray> m_pPowerNetNames;            ///< without apostrophes
  RecordList<CMGeomKeepout> m_pPlacementKeepouts;  ///< for components
  RecordList<CMGeomKeepout> m_pSpareKeepouts1;
  RecordList<CMGeomKeepout> m_pRoutingKeepouts;
  RecordList<CMGeomKeepout> m_pSpareKeepouts2;
  RecordList<CMGeomKeepout> m_pSpareKeepouts3;
  RecordList<CMGeomKeepout> m_pSpareKeepouts4;
  RecordList<CMGeomMechanicalParts> m_pMechanicalParts;     ///< spare
  RecordList<CMGeomPlacementRegion> m_pPlacementRegions;    ///< for components
  RecordList<CMGeomRoutingDirection> m_pRoutingDirections;  ///< spare
  RecordList<CMGeomDrill> m_pDrills;
  RecordList<CMGeomDrill> m_pUnplatedDrills;
};

/// A package that the netlist's components use.
class CMGeomComponent : public PooledRecord {
 public:
  Owned<CMGeomDrawObjArray> m_pDrawObjs;
  CString m_sName;
  CString m_sUnits;
  std::int64_t m_nSpare1 = 0;
  std::int64_t m_nSpare2 = 0;
  RecordList<CMGeomText> m_pTexts;
  RecordList<CMGeomAdd> m_pAdds;
  std::int64_t m_nUnset1 = 0;
  std::int64_t m_nUnset2 = 0;
  double m_dHeight = 0.0;                                   ///< in its unit
  NumberList m_pBodyOutline;                                ///< flat
  RecordList<CMGeomPlacementOutline> m_pPlacementOutlines;  ///< a record per line
  Owned<CStringArray> m_pSpareStrings;
  CString m_sSpare;
  CString m_sDefaultPadstack;  ///< the name of a padstack
  std::int64_t m_nUnset3 = 0;
  CString m_sLayoutSurface = "both";                ///< as the file has it
  CString m_sLayoutType;                            ///< as the file has it
  int m_bOutlineOverhang = 0;                       ///< 1 when the file says yes, else 0
  RecordList<CMGeomOverride> m_pPadstackOverrides;  ///< pins with a padstack of their own
  RecordList<CMGeomOverride> m_pSpareOverrides;
  RecordList<CMGeomPinDef> m_pPinDefs;  ///< its pins
  CString m_sComponentType;             ///< as the file has it
  RecordList<CMGeomDrill> m_pDrills;
  RecordList<CMGeomDrill> m_pUnplatedDrills;
  RecordList<CMGeomKeepout> m_pRoutingKeepouts;
  RecordList<CMGeomKeepout> m_pTraceKeepouts;
  RecordList<CMGeomKeepout> m_pViaKeepouts;
};

/// A part without pins of the netlist: a mounting hole, a fiducial.
class CMGeomGenericPart : public PooledRecord {
 public:
  CString m_sName;
  CString m_sUnits;
  CString m_sSpare;
  CString m_sSpare2;
  Owned<CMGeomDrawObjArray> m_pDrawObjs;
  std::int64_t m_nUnset = 0;
  Owned<CMGeomPlacementOutline> m_pPlacementOutline;  ///< without a name
  RecordList<CMGeomText> m_pTexts;
  NumberList m_pBodyOutline;  ///< flat
  RecordList<CMGeomDrill> m_pUnplatedDrills;
  RecordList<CMGeomDrill> m_pDrills;
  RecordList<CMGeomKeepout> m_pRoutingKeepouts;
  RecordList<CMGeomKeepout> m_pTraceKeepouts;
  RecordList<CMGeomKeepout> m_pViaKeepouts;
  RecordList<CMGeomAdd> m_pAdds;
};

/// A drawing.
class CMGeomDrawing : public PooledRecord {
 public:
  Owned<CMGeomDrawObjArray> m_pDrawObjs;
  CString m_sName;
  std::int64_t m_nUnset = 0;
  CString m_sUnits;
  RecordList<CMGeomText> m_pTexts;
  RecordList<CMGeomAdd> m_pAdds;
};

/// The padstack of a pin.
class CMGeomPin : public PooledRecord {
 public:
  Owned<CMGeomDrawObjArray> m_pDrawObjs;
  int m_nTerminalType = 1;  ///< 1 thru-hole, 2 surface, 3 blind
  CString m_sName;
  CString m_sUnits;
  std::int64_t m_nSpare1 = 0;
  std::int64_t m_nSpare2 = 0;
  double m_dDrillSize = 0.0;  ///< of the hole, 0 when none is given
  RecordList<CMGeomText> m_pTexts;
  RecordList<CMGeomAdd> m_pAdds;
};

/// The padstack of a via.
class CMGeomVia : public PooledRecord {
 public:
  int m_nViaType = 0;  ///< 0 not said, 1 thru, 2 buried, 3 segment, 4 two-layer
  CString m_sName;
  CString m_sUnits;
  std::int64_t m_nUnset1 = 0;
  std::int64_t m_nUnset2 = 0;
  double m_dDrillSize = 0.0;  ///< of the hole, 0 when none is given
  Owned<CMGeomDrawObjArray> m_pDrawObjs;
  RecordList<CMGeomAdd> m_pAdds;
  RecordList<CMGeomText> m_pTexts;
};

/// Several boards on one sheet.
class KESTRIN_EXPORT CMGeomPanel : public PooledRecord {
 public:
  CMGeomPanel() = default;
  CMGeomPanel(const CMGeomPanel&) = delete;
  CMGeomPanel& operator=(const CMGeomPanel&) = delete;
  virtual ~CMGeomPanel();

  CString m_sName;
  CString m_sUnits;
  Owned<CMGeomDrawObjArray> m_pDrawObjs;
  RecordList<CMGeomAdd> m_pAdds;
  RecordList<CMGeomText> m_pTexts;
  RecordList<CMGeomDrill> m_pDrills;
  RecordList<CMGeomDrill> m_pUnplatedDrills;
};

/// One layer definition of the stack-up. Copies share the values.
class KESTRIN_EXPORT CMGeomLayerDEF {
 public:
  CMGeomLayerDEF();
  CMGeomLayerDEF(const CMGeomLayerDEF&);
  CMGeomLayerDEF& operator=(const CMGeomLayerDEF&);
  ~CMGeomLayerDEF();

  std::int64_t m_nUnset1 = 0;
  Shared<CStringArray> m_pValues;  ///< of its line, but for those in brackets
  std::int64_t m_nUnset2 = 0;
  std::int64_t m_nUnset3 = 0;
  std::int64_t m_nUnset4 = 0;
  int m_nSpare = 0;
  CString m_sDefinition;  ///< the attribute that made it, in upper case
};

/// The layer definitions of the board. Copies share them.
class KESTRIN_EXPORT CMGeomStackup {
 public:
  CMGeomStackup();
  CMGeomStackup(const CMGeomStackup&);
  CMGeomStackup& operator=(const CMGeomStackup&);
  ~CMGeomStackup();

  CString m_sName;
  CString m_sUnits;
  SharedRecordList<CMGeomLayerDEF> m_pLayers;  ///< from the last create command on
};

/// The root of a Geometry file. Copies share everything; it goes with the last copy. Lists are in file order.
class KESTRIN_EXPORT CMGeom {
 public:
  CMGeom();
  CMGeom(const CMGeom&);
  CMGeom& operator=(const CMGeom&);
  ~CMGeom();

  void* m_pReserved1 = nullptr;
  void* m_pReserved2 = nullptr;
  void* m_pReserved3 = nullptr;
  void* m_pReserved4 = nullptr;
  Shared<CMGeomBoard> m_pBoard;                         ///< the one board, there also when the file has none
  SharedRecordList<CMGeomComponent> m_pComponents;      ///< the packages
  Shared<CMGeomStackup> m_pStackup;                     ///< the one stack-up, likewise
  SharedRecordList<CMGeomPin> m_pPins;                  ///< padstacks of pins
  SharedRecordList<CMGeomVia> m_pVias;                  ///< padstacks of vias
  SharedRecordList<CMGeomDrawing> m_pDrawings;          ///< the drawings
  SharedRecordList<CMGeomGenericPart> m_pGenericParts;  ///< mounting holes, fiducials and the like
  SharedRecordList<CMGeomPanel> m_pPanels;              ///< the panels
};

}  // namespace kestrin
