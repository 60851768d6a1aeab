// Every record of the room, field by field, through the suite over all records.

#include <gtest/gtest.h>

#include "media/described_records.h"

namespace {

INSTANTIATE_TYPED_TEST_SUITE_P(Media, RecordFields, MediaRecords, InterfaceName);
INSTANTIATE_TYPED_TEST_SUITE_P(Media, RecordCopies, CopiedMediaRecords, InterfaceName);

}  // namespace
