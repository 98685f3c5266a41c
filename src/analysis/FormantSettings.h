// The fixed settings of formant tracking. No part of the program changes them.
#pragma once

namespace formant {

inline constexpr double analysisRate = 10000.0;  // Hz; every recording is analysed at this rate
inline constexpr int lpcOrderFormant = 12;
inline constexpr double windowDuration = 0.049;  // seconds: 490 samples
inline constexpr double frameInterval = 0.01;    // seconds: 100 samples
inline constexpr double preEmphasis = 0.7;
inline constexpr double stabilityDb = 70.0;  // noise floor of the autocorrelation
inline constexpr int windowKind = 2;         // the raised cosine to the fourth power
inline constexpr int nFormants = 5;          // slots of the mapping; the fifth is not handed out
inline constexpr int maxPoles = 10;          // poles kept per frame
inline constexpr double nominalF1 = -10.0;   // not positive: the slot table stands
inline constexpr double missingCost = 1.0;   // cost term of an unfilled slot
inline constexpr double noBandwidth = 1000.0;
inline constexpr double transitionFactor = 20.0;
inline constexpr double deviationFactor = 0.3;
inline constexpr double bandwidthFactor = 0.002;
inline constexpr double mergeCost = 2000.0;  // above 1000: poles are never merged
inline constexpr double frequencyBias = 0.0;
inline constexpr int maxMappings = 300;  // rows of the mapping table; the enumeration stops there

}  // namespace formant
