#pragma once

/// @file
/// A text on a geometry, and its conversion to the text conventions of hosts.

#include "kestrin/base/export.h"
#include "kestrin/framework/string.h"
#include "kestrin/records/pooled_record.h"

namespace kestrin {

/// A text as the file has it. Hosts read its members and ask for the three values that depend on each other:
/// mirroring, angle and anchor.
class KESTRIN_EXPORT CMGeomText : public PooledRecord {
 public:
  /// 1 for a layer of the board's bottom side, whatever the case of its name, else 0.
  [[nodiscard]] int IsBottomLayer(CString layerName) const;

  /// Gives the mirror flag (0 or 1), the angle in degrees, not normalised, and the anchor: 1 to 9, row by row
  /// from top left to bottom right. A text that would read upside down is turned by 180 degrees: its angle
  /// and its anchor change, the mirror flag does not.
  void Get_OrvaneTextStyleValue(int& mirror, double& angle, int& anchor) const;

  CString m_sLayer;  ///< as the file names it
  CString m_sText;   ///< what is to be read
  ///@{
  /// The position.
  double m_dX = 0.0;
  double m_dY = 0.0;
  ///@}

  double m_dSize = 0.0;      ///< as the file has it
  CString m_sJustification;  ///< a code like "@CC"; what is no code stands for "@BL"
  double m_dAngle = 0.0;     ///< in degrees
  double m_dValue8 = 1.0;
  double m_dValue9 = 0.01;
  CString m_sValue10 = "std";
  CString m_sValue11;
  double m_dValue12 = 0.0;
  double m_dValue13 = 0.0;
  CString m_sExtra;    ///< never filled
  CString m_sMirror;   ///< "@Mirror", "@NOMirror" or empty for what is usual on the layer's side
  CString m_sReading;  ///< never filled; "@RIGHT_READING" or empty when the text may be turned
  int m_nExtra = 0;    ///< never filled

 private:
  [[nodiscard]] int GetMirrorStatus() const;
  [[nodiscard]] int Is_Apply_Right_Reading() const;
  [[nodiscard]] double Get_OrvaneAngle() const;
  [[nodiscard]] int Convert_TavrelJust_To_OrvaneJust() const;
  [[nodiscard]] int Get_OrvaneJustification() const;
};

}  // namespace kestrin
