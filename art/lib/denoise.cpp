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
        Plane row(p.begin() + s.at(0, y), p.begin() + s.at(0, y) + s.width);
        double sum = 0;
        for (int x = -r; x <= r; ++x) sum += row[std::clamp(x, 0, s.width - 1)];
        for (int x = 0; x < s.width; ++x) {
            p[s.at(x, y)] = static_cast<float>(sum / (2 * r + 1));
            sum += row[std::min(x + r + 1, s.width - 1)] - row[std::max(x - r, 0)];
        }
    }
}

void boxColumns(Plane& p, Size s, int r) {
    Plane in = p;
#pragma omp parallel for
    for (int y = 0; y < s.height; ++y)
        for (int x = 0; x < s.width; ++x) {
            float sum = 0;
            for (int d = -r; d <= r; ++d) sum += in[s.at(x, std::clamp(y + d, 0, s.height - 1))];
            p[s.at(x, y)] = sum / (2 * r + 1);
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

struct Guide {
    const float* albedo;
    const float* normal;
};

float guideWeight(const Guide& g, std::size_t i, std::size_t j) {
    float a = 0;
    float n = 0;
    for (int c = 0; c < 3; ++c) {
        const float da = g.albedo[3 * i + c] - g.albedo[3 * j + c];
        const float dn = g.normal[3 * i + c] - g.normal[3 * j + c];
        a += da * da;
        n += dn * dn;
    }
    return a / 0.02F + n / 0.18F;
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
    const Guide guide{albedo, normal};
    const float k2 = 0.45F * strength * strength + 1e-6F;
    for (int dy = -radius; dy <= radius; ++dy)
        for (int dx = -radius; dx <= radius; ++dx) {
            if (dx * dx + dy * dy > radius * radius + 1) continue;
#pragma omp parallel for
            for (int y = 0; y < height; ++y)
                for (int x = 0; x < width; ++x) {
                    const auto i = s.at(x, y);
                    const auto j = s.at(std::clamp(x + dx, 0, width - 1), std::clamp(y + dy, 0, height - 1));
                    const float d = lum[i] - lum[j];
                    dist[i] =
                        (d * d - (var[i] + std::min(var[i], var[j]))) / (1e-5F + k2 * (var[i] + var[j]));
                }
            box(dist, s, 2);
#pragma omp parallel for
            for (int y = 0; y < height; ++y)
                for (int x = 0; x < width; ++x) {
                    const int x2 = x + dx;
                    const int y2 = y + dy;
                    if (x2 < 0 || y2 < 0 || x2 >= width || y2 >= height) continue;
                    const auto i = s.at(x, y);
                    const auto j = s.at(x2, y2);
                    const float w = std::exp(-std::max(0.F, dist[i]) - guideWeight(guide, i, j));
                    for (int c = 0; c < 3; ++c) acc[c][i] += w * light[c][j];
                    total[i] += w;
                }
        }
    for (std::size_t i = 0; i < n; ++i)
        for (int c = 0; c < 3; ++c)
            colour[3 * i + c] = std::expm1(acc[c][i] / total[i]) * (albedo[3 * i + c] + 0.03F);
}
