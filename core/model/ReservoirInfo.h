#pragma once

#include <memory>
#include <vector>

/// What describes a reservoir besides its series. Volumes in hm³ and areas in km² as projects hold them: they
/// are stored as read. Every field has a place of its own; whoever changes some of them writes the others
/// back.
struct ReservoirInfo {
  double initialVolume = 0.0;
  double minimumVolume = 0.0;
  double maximumVolume = 0.0;
  std::vector<std::vector<double>> areaVolumeCurve; ///< rows of {level, area, volume}, in the project's order
  std::vector<std::vector<double>> hostRows;        ///< the host's; only carried
  std::shared_ptr<void> hostObject;                 ///< the host's; only carried
  bool volumeFlag = false;
  double hostValue = 0.0; ///< the host's; only carried
};
