// Takes the grain out of a render: non-local means on the lighting alone. The picture is divided by the
// surface colour first and multiplied by it afterwards, so that scales, wood and crumbs keep their detail;
// surface colour and normal also stop the filter from reaching over edges. Called by core.py through a C
// interface.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace {

using Plane = std::vector<float>;

struct Size {
    int width;
    int height;
    std::size_t count() const { return static_cast<std::size_t>(width) * height; }
    std::size_t at(int x, int y) const { return static_cast<std::size_t>(y) * width + x; }
};

void boxRows(Plane& p, Size s, int r) {
#pragma omp parallel for
    for (int y = 0; y < s.height; ++y) {
        float* out = &p[s.at(0, y)];
        std::vector<float> row(s.width + 2 * r, out[0]);  // its ends go on
        std::copy(out, out + s.width, row.begin() + r);
        std::fill(row.begin() + r + s.width, row.end(), out[s.width - 1]);
        std::fill(out, out + s.width, 0.F);
        for (int d = 0; d <= 2 * r; ++d)
            for (int x = 0; x < s.width; ++x) out[x] += row[x + d] / static_cast<float>(2 * r + 1);
    }
}

void boxColumns(Plane& p, Size s, int r) {
    const Plane in = p;
#pragma omp parallel for
    for (int y = 0; y < s.height; ++y) {
        float* out = &p[s.at(0, y)];
        std::fill(out, out + s.width, 0.F);
        for (int d = -r; d <= r; ++d) {
            const float* row = &in[s.at(0, std::clamp(y + d, 0, s.height - 1))];
            for (int x = 0; x < s.width; ++x) out[x] += row[x] / static_cast<float>(2 * r + 1);
        }
    }
}

void box(Plane& p, Size s, int r) {
    boxRows(p, s, r);
    boxColumns(p, s, r);
}

/// Local variance of the grain: squared difference from the 3x3 mean, averaged over a neighbourhood.
Plane variance(const Plane& l, Size s) {
    Plane mean = l;
    box(mean, s, 1);
    Plane v(s.count());
    for (std::size_t i = 0; i < v.size(); ++i) {
        const float d = l[i] - mean[i];
        v[i] = d * d * 1.3F;
    }
    box(v, s, 4);
    return v;
}

/// Surface colour and normal, one plane for each of their six numbers, so that a row is worked on at once.
std::vector<Plane> guidePlanes(const float* albedo, const float* normal, std::size_t n) {
    std::vector<Plane> planes(6, Plane(n));
    for (std::size_t i = 0; i < n; ++i)
        for (int c = 0; c < 3; ++c) {
            planes[c][i] = albedo[3 * i + c] * std::sqrt(1 / 0.02F);
            planes[3 + c][i] = normal[3 * i + c] * std::sqrt(1 / 0.18F);
        }
    return planes;
}

}  // namespace

/// Filters \a colour (width*height RGB, linear) in place. \a strength is 1 for the ordinary filter, 0 leaves
/// all as it is.
extern "C" void denoise(float* colour, const float* albedo, const float* normal, int width, int height,
                        float strength, int radius) {
    const Size s{width, height};
    const std::size_t n = s.count();
    std::vector<Plane> light(3, Plane(n));
    Plane lum(n);
    for (std::size_t i = 0; i < n; ++i) {
        float sum = 0;
        for (int c = 0; c < 3; ++c) {
            const float a = albedo[3 * i + c];
            light[c][i] = std::log1p(std::max(0.F, colour[3 * i + c]) / (a + 0.03F));
            sum += light[c][i];
        }
        lum[i] = sum / 3;
    }
    const Plane var = variance(lum, s);
    std::vector<Plane> acc(3, Plane(n, 0.F));
    Plane total(n, 1e-9F);
    Plane dist(n);
    const std::vector<Plane> guide = guidePlanes(albedo, normal, n);
    const float k2 = 0.45F * strength * strength + 1e-6F;
    for (int dy = -radius; dy <= radius; ++dy)
        for (int dx = -radius; dx <= radius; ++dx) {
            if (dx * dx + dy * dy > radius * radius + 1) continue;
#pragma omp parallel for
            for (int y = 0; y < height; ++y) {
                const std::size_t row = s.at(0, y);
                const std::size_t other = s.at(0, std::clamp(y + dy, 0, height - 1));
                const auto at = [&](int x, std::size_t j) {
                    const float d = lum[row + x] - lum[j];
                    const float v = var[row + x];
                    dist[row + x] = (d * d - (v + std::min(v, var[j]))) / (1e-5F + k2 * (v + var[j]));
                };
                const int from = std::max(0, -dx);
                const int to = std::min(width, width - dx);
                for (int x = 0; x < from; ++x) at(x, other);
                for (int x = from; x < to; ++x) at(x, other + x + dx);
                for (int x = to; x < width; ++x) at(x, other + width - 1);
            }
            box(dist, s, 2);
            const int from = std::max(0, -dx);
            const int to = std::min(width, width - dx);
#pragma omp parallel for
            for (int y = std::max(0, -dy); y < std::min(height, height - dy); ++y) {
                const std::size_t row = s.at(0, y);
                const std::size_t other = s.at(0, y + dy) + dx;
                std::vector<float> weight(width);
                for (int x = from; x < to; ++x) weight[x] = std::max(0.F, dist[row + x]);
                for (const Plane& g : guide)
                    for (int x = from; x < to; ++x) {
                        const float d = g[row + x] - g[other + x];
                        weight[x] += d * d;
                    }
                for (int x = from; x < to; ++x) weight[x] = std::exp(-weight[x]);
                for (int c = 0; c < 3; ++c)
                    for (int x = from; x < to; ++x) acc[c][row + x] += weight[x] * light[c][other + x];
                for (int x = from; x < to; ++x) total[row + x] += weight[x];
            }
        }
    for (std::size_t i = 0; i < n; ++i)
        for (int c = 0; c < 3; ++c)
            colour[3 * i + c] = std::expm1(acc[c][i] / total[i]) * (albedo[3 * i + c] + 0.03F);
}

// SPDX-License-Identifier: GPL-3.0-or-later
