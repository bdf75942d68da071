#include <ostream>

#include "support/generators/board/board_plan.h"

namespace kestrin::test {
namespace {

void WriteComponent(std::ostream& out, const PlannedComponent& component) {
  const Package& package = *component.package;
  out << "COMP " << component.reference << " PN-" << package.name << " SYM_" << package.letter << " "
      << package.name << " " << Decimals(component.origin, " ") << " " << (component.isOnBottom ? 2 : 1)
      << " " << component.degrees << "\n";
  out << "C_PROP (REFLOC,\"" << component.reference << ",0.0,0.0,0,@CC,1.0,1.0,0.15,std,@SHOW,SILKSCREEN_"
      << (component.isOnBottom ? 2 : 1) << "\") (VALUE,\"10 k\")\n";
}

}  // namespace

void WriteNeutral(std::ostream& out, const BoardPlan& plan) {
  out << "###Panel\nP_ADDP 1 GENERATED B_1 10.0 10.0 1 0 0\n";
  out << "###Board Information\nBOARD GENERATED REV_A X:" << Decimal(plan.size.x)
      << " Y:" << Decimal(plan.size.y) << " " << BoardPlan::kLayers << " 1.6\nB_UNITS MM\n";
  out << "###Nets\n";
  for (std::size_t i = 0; i < plan.nets.size(); ++i) {
    out << "NET '" << NameOfNet(i) << "'\nN_PROP (NET_TYPE,\"SIGNAL\")\n";
    for (std::size_t k = 0; k < plan.nets[i].pins; ++k) {
      const PlannedPin& pin = plan.pins[plan.nets[i].firstPin + k];
      out << "N_PIN '" << NameOfPin(plan, pin) << "' " << Decimals(pin.place, " ") << " PAD_"
          << (plan.components[pin.component].isOnBottom ? 2 : 1) << " "
          << plan.components[pin.component].package->padstack << "\n";
    }
  }
  out << "###Component\n";
  for (const PlannedComponent& component : plan.components) WriteComponent(out, component);
}

}  // namespace kestrin::test
