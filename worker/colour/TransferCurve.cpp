#include "TransferCurve.h"

#include <algorithm>
#include <cmath>

namespace imageworker {

namespace {

/// Recommendation ITU-R BT.2100-2, table 4.
double linearOfPq(double code)
{
    constexpr double M1 = 2610.0 / 16384;
    constexpr double M2 = 2523.0 / 4096 * 128;
    constexpr double C1 = 3424.0 / 4096;
    constexpr double C2 = 2413.0 / 4096 * 32;
    constexpr double C3 = 2392.0 / 4096 * 32;
    const double power = std::pow(code, 1 / M2);
    return std::pow(std::max(power - C1, 0.0) / (C2 - C3 * power), 1 / M1);
}

/// Recommendation ITU-R BT.2100-2, table 5.
double linearOfHlg(double code)
{
    constexpr double A = 0.17883277;
    constexpr double B = 1 - 4 * A;
    constexpr double C = 0.55991073;
    return code <= 0.5 ? code * code / 3 : (std::exp((code - C) / A) + B) / 12;
}

double linearOfSmpte240(double code)
{
    constexpr double Knee = 0.0912;
    return code < Knee ? code / 4 : std::pow((code + 0.1115) / 1.1115, 1 / 0.45);
}

double linearOfLogarithm(double code, double decades)
{
    return code <= 0 ? 0 : std::pow(10, (code - 1) * decades);
}

} // namespace

bool isShownLikeSrgb(unsigned transfer)
{
    switch (transfer) {
    case 4:
    case 5:
    case 7:
    case 8:
    case 9:
    case 10:
    case TransferPq:
    case 17:
    case TransferHlg:
        return false;
    default:
        return true;
    }
}

double linearOf(unsigned transfer, double code)
{
    switch (transfer) {
    case 4:
        return std::pow(code, 2.2);
    case 5:
        return std::pow(code, 2.8);
    case 7:
        return linearOfSmpte240(code);
    case 8:
        return code;
    case 9:
        return linearOfLogarithm(code, 2);
    case 10:
        return linearOfLogarithm(code, 2.5);
    case TransferPq:
        return linearOfPq(code);
    case 17: // SMPTE ST 428-1
        return std::pow(code, 2.6) * 52.37 / 48;
    case TransferHlg:
        return linearOfHlg(code);
    default:
        return linearOfSrgb(code);
    }
}

double linearOfSrgb(double code)
{
    return code <= 0.04045 ? code / 12.92 : std::pow((code + 0.055) / 1.055, 2.4);
}

double srgbOfLinear(double linear)
{
    return linear <= 0.0031308 ? linear * 12.92 : 1.055 * std::pow(linear, 1 / 2.4) - 0.055;
}

} // namespace imageworker
