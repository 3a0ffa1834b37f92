// Test fixture of the rounding and date utilities: every test starts, and leaves, with the
// separators of an engine just created.
#ifndef ORVALIS_FRAME_MODOUTILS_TEST_OUTILS_H_
#define ORVALIS_FRAME_MODOUTILS_TEST_OUTILS_H_

#include <gtest/gtest.h>

#include "orvalis/ModOutilsSpec.h"

namespace orvalis::outils_test {

class SeparateursDuSysteme : public ::testing::Test {
 protected:
  void SetUp() override { DetecteSeparateurDecimal(); }
  void TearDown() override { DetecteSeparateurDecimal(); }
};

}  // namespace orvalis::outils_test

#endif  // ORVALIS_FRAME_MODOUTILS_TEST_OUTILS_H_
