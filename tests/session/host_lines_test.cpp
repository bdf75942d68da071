// Code as hosts write it, with fields that are plain pointers. Half of the test is that it compiles.

#include <gtest/gtest.h>

#include "kestrin/kestrin.h"
#include "tests/support/sample_board.h"

namespace kestrin {
namespace {

template <class T>
long long Count(const CArray<T*, T*>* list) {
  return list->GetSize();
}

TEST(HostLines, WalkTheModelThroughPlainPointers) {
  CPC_KESTRIN_GET session;
  test::ImportBoard(session);

  auto* root = session.m_pGeom;
  CMGeom* geom = session.GetGeom();
  EXPECT_EQ(root, geom);
  auto* board = geom->m_pBoard;
  EXPECT_FALSE(board->m_sName.IsEmpty());
  const auto* pins = geom->m_pPins;
  EXPECT_EQ(Count(pins), pins->GetSize());
  CMGeomComponent* component = geom->m_pComponents->GetAt(0);
  auto list = component->m_pTexts;
  list = board->m_pTexts;
  EXPECT_EQ(list, board->m_pTexts);

  CMTracesNET* net = session.m_pTraces->m_pNetArray->GetAt(0);
  const bool isWanted = net != nullptr;
  auto* wires = isWanted ? net->m_pWirArray : nullptr;
  EXPECT_EQ(Count(wires), Count(net->m_pWirArray));
  CArray<CMTracesINCANT*, CMTracesINCANT*>* const open = net->m_pIncArray;
  EXPECT_EQ(open->GetSize(), Count(open));

  const CMNetInfo& info = *session.m_pNetList->m_pNets->GetAt(0);
  CMRefPin* const first = info.m_pPins->GetAt(0);
  (*info.m_pPins)[0] = first;

  CMGeomPath path;
  auto* xy = path.m_pCoords;
  xy->Add(1.5);
  double* const numbers = path.m_pCoords->GetData();
  EXPECT_EQ(numbers[0], 1.5);

  CMTechViaArray* vias = session.GetTech()->m_pViaArray;
  CExPtrArray<CMTechVia*>* asBase = vias;
  EXPECT_EQ(asBase->GetLastIndex(), vias->GetSize() - 1);
  RecordArray<CMTracesNET>* CMTraces::*const nets = &CMTraces::m_pNetArray;
  EXPECT_EQ((session.m_pTraces->*nets)->GetAt(0), net);
}

TEST(HostLines, APointerThatAHostClearsFreesNothing) {
  CPC_KESTRIN_GET session;
  test::ImportBoard(session);
  CMGeom* const geom = session.m_pGeom;
  const CString name = geom->m_pBoard->m_sName;
  session.m_pGeom = nullptr;
  EXPECT_EQ(session.GetGeom(), nullptr);
  EXPECT_EQ(geom->m_pBoard->m_sName, name);
}

}  // namespace
}  // namespace kestrin
