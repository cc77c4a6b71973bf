// How much is tried of what a test tries in great numbers.
#pragma once

#include <QtCore/QtGlobal>

/// 1: each is tried; under KAV_SAMPLE STRIDE: one in so many. The sanitizers take five times as long, and what they look
/// for is seldom in one of a thousand alike; results are judged by the run without them. `./test --full` tries each.
inline int sampleStride(int stride)
{
    return qEnvironmentVariableIsSet("KAV_SAMPLE") ? stride : 1;
}
