#include "values/PieShares.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

constexpr float sameness = 1e-5F;
constexpr float plausibleLimit = 1e6F;

} // namespace

float PieShares::plausible(float share)
{
    return std::isfinite(share) ? std::clamp(share, -plausibleLimit, plausibleLimit) : 0.0F;
}

bool PieShares::isSame(float share, float other)
{
    return std::abs(share - other) <= sameness;
}

void PieShares::take(float amount, std::vector<float> &others)
{
    std::vector<size_t> open(others.size());
    std::iota(open.begin(), open.end(), size_t(0));

    bool clamped = true;
    while (clamped && !open.empty() && amount != 0.0F) {
        const float part = amount / float(open.size());
        const auto falls = [&](size_t i) {
            if (!(others[i] - part < Floor))
                return false;
            amount -= Floor - others[i];
            others[i] = Floor;
            return true;
        };
        const auto stay = std::remove_if(open.begin(), open.end(), falls);
        clamped = stay != open.end();
        open.erase(stay, open.end());
    }
    if (open.empty() || amount == 0.0F)
        return;
    const float part = amount / float(open.size());
    for (const size_t i : open)
        others[i] = std::max(others[i] - part, Floor);
}

float PieShares::remainder(float sumOfOthers)
{
    return std::max(Whole - sumOfOthers, Floor);
}

float PieShares::equalPart(float sumOfLocked, int count)
{
    return std::max((Whole - sumOfLocked) / float(std::max(count, 1)), Floor);
}
