// Says whether a call log has survived a scene.
#pragma once

#include "handset/calllog/faults/FaultScenes.h"
#include "handset/calllog/faults/FaultWorld.h"

#include <QtCore/QByteArrayList>

namespace handset::faults {

/// What a sound telephone has after the scene's files were opened, before its first step.
struct Before {
    World world;
    QByteArrayList rows; ///< of the calls and sessions that were there, which none may lose
};

/// Opens the directory without faults; an empty list of rows when that fails.
Before lookBefore(const QString &directory);

/// Everything that is wrong, a sentence each; opens, uses and closes the directory.
QByteArrayList judge(const Scene &scene, const Before &before, const QString &directory, const Fault &fault,
                     const Journal &journal);

} // namespace handset::faults
