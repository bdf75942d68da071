#pragma once

/// @file
/// A text on a geometry, and its conversion to the host's conventions.

#include "kestrin/base/export.h"
#include "kestrin/framework/string.h"
#include "kestrin/records/pooled_record.h"

namespace kestrin {

/// A text as it is in the file. Three of its properties depend on each other; get them together:
///
///     int mirror = 0, anchor = 0;
///     double angle = 0.0;
///     text->Get_OrvaneTextStyleValue(mirror, angle, anchor);
class KESTRIN_EXPORT CMGeomText : public PooledRecord {
 public:
  /// Returns 1 if the layer is on the board's bottom side, else 0. Ignores the case of the name.
  [[nodiscard]] int IsBottomLayer(CString layerName) const;

  /// Gets whether the text is mirrored (0 or 1), its angle in degrees, not normalized, and its anchor: 1 to
  /// 9, row by row from top left to bottom right. A text that would be upside down is turned by 180 degrees:
  /// this changes its angle and its anchor, but not the mirroring.
  void Get_OrvaneTextStyleValue(int& mirror, double& angle, int& anchor) const;

  CString m_sLayer;  ///< the name of the layer in the file
  CString m_sText;   ///< the text
  ///@{
  /// A coordinate of the position.
  double m_dX = 0.0;
  double m_dY = 0.0;
  ///@}

  double m_dSize = 0.0;      ///< the size, value 5 of the line
  CString m_sJustification;  ///< a code such as "@CC"; any other text means "@BL"
  double m_dAngle = 0.0;     ///< in degrees
  ///@{
  /// Value N of the line, where N is the number in the name.
  double m_dValue8 = 1.0;
  double m_dValue9 = 0.01;
  CString m_sValue10 = "std";
  CString m_sValue11;
  double m_dValue12 = 0.0;
  double m_dValue13 = 0.0;
  ///@}
  CString m_sExtra;
  CString m_sMirror;   ///< "@Mirror" or "@NOMirror"; empty means mirrored on bottom layers only
  CString m_sReading;  ///< not filled by readers; turning is on if it is empty or "@RIGHT_READING"
  int m_nExtra = 0;

 private:
  [[nodiscard]] int GetMirrorStatus() const;
  [[nodiscard]] int Is_Apply_Right_Reading() const;
  [[nodiscard]] double Get_OrvaneAngle() const;
  [[nodiscard]] int Convert_TavrelJust_To_OrvaneJust() const;
  [[nodiscard]] int Get_OrvaneJustification() const;
};

}  // namespace kestrin
