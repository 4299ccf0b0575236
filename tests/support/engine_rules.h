// The rules of the event engine, each written once, for every face of the program.
//
//     using Desktop = testing::Types<DesktopFace>;
//     INSTANTIATE_TYPED_TEST_SUITE_P(Desktop, KeyRules, Desktop); ...
#pragma once

#include "support/engine_rules/editing.h"
#include "support/engine_rules/ending.h"
#include "support/engine_rules/focus.h"
#include "support/engine_rules/keys.h"
#include "support/engine_rules/operating.h"
#include "support/engine_rules/repeats.h"
#include "support/engine_rules/serving.h"

/// All of them for one face; `Name` stands in front of their names.
#define INSTANTIATE_ENGINE_RULES(Name, SomeFace)                     \
    using Name##Faces = testing::Types<SomeFace>;                    \
    INSTANTIATE_TYPED_TEST_SUITE_P(Name, KeyRules, Name##Faces);     \
    INSTANTIATE_TYPED_TEST_SUITE_P(Name, FocusRules, Name##Faces);   \
    INSTANTIATE_TYPED_TEST_SUITE_P(Name, RepeatRules, Name##Faces);  \
    INSTANTIATE_TYPED_TEST_SUITE_P(Name, ServingRules, Name##Faces); \
    INSTANTIATE_TYPED_TEST_SUITE_P(Name, EndingRules, Name##Faces);  \
    INSTANTIATE_TYPED_TEST_SUITE_P(Name, EditingRules, Name##Faces); \
    INSTANTIATE_TYPED_TEST_SUITE_P(Name, OperatingRules, Name##Faces)
