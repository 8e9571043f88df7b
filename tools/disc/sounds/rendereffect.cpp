#include <algorithm>
#include <cmath>
#include <random>

#include "effects.h"

namespace sarne::disc {
namespace {

constexpr int kRate = 44100;
constexpr double kRelease = 0.008;

/// Random numbers that are the same on every machine.
class Dice {
  public:
    explicit Dice(unsigned seed) : engine_(seed) {}

    double upTo(double limit) { return limit * static_cast<double>(engine_()) / 4294967296.0; }
    double noise() { return upTo(2) - 1; }

  private:
    std::mt19937 engine_;
};

/// Lets through a band of the sound around a pitch that may move.
class Band {
  public:
    double operator()(double in, double pitch, double octaves) {
        const double f = 2 * std::sin(M_PI * std::min(pitch, kRate / 6.5) / kRate);
        const double damping = std::clamp(std::pow(2, octaves / 2) - std::pow(2, -octaves / 2), 0.01, 1.4);
        low_ += f * band_;
        band_ += f * (in - low_ - damping * band_);
        return band_ * damping;
    }

  private:
    double low_ = 0;
    double band_ = 0;
};

struct Mode {
    double ratio;
    double loudness;
    double decay;
};

/// Overtones of what is struck: times the pitch, how loud, and how long against the lowest.
std::vector<Mode> modes(Material material) {
    switch (material) {
        case Material::wood:
            return {{1, 1, 1}, {2.57, 0.5, 0.6}, {4.95, 0.28, 0.4}, {7.1, 0.14, 0.25}};
        case Material::metal:
            return {{1, 1, 1},         {1.506, 0.6, 0.9}, {1.99, 0.55, 0.85}, {2.74, 0.4, 0.7},
                    {3.01, 0.3, 0.65}, {4.23, 0.25, 0.5}, {5.4, 0.2, 0.4}};
        case Material::glass:
            return {{1, 1, 1}, {2.32, 0.6, 0.6}, {4.25, 0.35, 0.4}, {6.63, 0.2, 0.25}, {9.38, 0.1, 0.15}};
        case Material::bell:
            return {{0.5, 0.3, 1.4}, {1, 1, 1},         {1.183, 0.45, 0.9}, {1.506, 0.35, 0.8},
                    {2, 0.6, 0.7},   {2.514, 0.3, 0.5}, {2.662, 0.2, 0.45}, {4.17, 0.2, 0.3}};
        case Material::stone:
            return {{1, 1, 1}, {1.9, 0.7, 0.7}, {3.4, 0.5, 0.5}, {5.7, 0.3, 0.3}};
    }
    return {};
}

/// Writes one layer into an effect's samples.
class LayerPainter {
  public:
    LayerPainter(const Layer& layer, std::vector<float>& samples, unsigned seed)
        : layer_(layer), samples_(samples), gain_(fromDecibels(layer.loudness)), dice_(seed) {}

    void paint() {
        switch (layer_.voice) {
            case Voice::tone:
                return tone();
            case Voice::noise:
                return noise();
            case Voice::strike:
                return strike(layer_.from, layer_.pitch.first, 1);
            case Voice::grains:
                return grains();
            case Voice::creak:
                return creak();
        }
    }

  private:
    int frames() const { return static_cast<int>(layer_.length * kRate); }
    double share(int frame) const { return static_cast<double>(frame) / frames(); }

    /// The pitch \a frame frames into the layer: glides are even to the ear.
    double pitch(int frame) const {
        return layer_.pitch.first * std::pow(layer_.pitch.second / layer_.pitch.first, share(frame));
    }

    double envelope(int frame) const {
        const double time = static_cast<double>(frame) / kRate;
        const double rise = std::min(1.0, time / std::max(1e-4, layer_.attack));
        const double fall =
            layer_.decay > 0 ? std::exp(-std::max(0.0, time - layer_.attack) / layer_.decay) : 1;
        const double release = std::clamp((layer_.length - time) / kRelease, 0.0, 1.0);
        const double swell =
            layer_.tremolo > 0 ? 0.62 - 0.38 * std::cos(2 * M_PI * layer_.tremolo * time) : 1;
        return rise * fall * release * swell;
    }

    void add(double seconds, int frame, double value) {
        const auto at = static_cast<size_t>(seconds * kRate) + static_cast<size_t>(frame);
        if (at < samples_.size()) samples_[at] += static_cast<float>(value * gain_);
    }

    void tone() {
        double phase = 0;
        for (int i = 0; i < frames(); ++i) {
            phase += 2 * M_PI * pitch(i) / kRate;
            const double wave = std::sin(phase) + 0.22 * std::sin(2 * phase) + 0.08 * std::sin(3 * phase);
            add(layer_.from, i, envelope(i) * wave);
        }
    }

    void noise() {
        Band first;
        Band second;
        for (int i = 0; i < frames(); ++i) {
            const double once = first(dice_.noise(), pitch(i), layer_.width);
            add(layer_.from, i, 4 * envelope(i) * second(once, pitch(i), layer_.width));
        }
    }

    void strike(double from, double height, double loudness) {
        const double decay = layer_.decay > 0 ? layer_.decay : 0.08;
        for (const Mode& mode : modes(layer_.material)) {
            if (mode.ratio * height > kRate * 0.45) continue;
            const int length = static_cast<int>(std::min(6.0, 7 * decay * mode.decay) * kRate);
            for (int i = 0; i < length; ++i) {
                const double time = static_cast<double>(i) / kRate;
                const double rise = std::min(1.0, time / 0.0012);
                add(from, i,
                    loudness * mode.loudness * rise * std::exp(-time / (decay * mode.decay)) *
                        std::sin(2 * M_PI * mode.ratio * height * time));
            }
        }
        burst(from, height * 4, 0.004, 0.5 * loudness);
    }

    /// A short breath of noise.
    void burst(double from, double height, double decay, double loudness) {
        Band band;
        for (int i = 0; i < static_cast<int>(decay * 6 * kRate); ++i) {
            const double time = static_cast<double>(i) / kRate;
            const double shape = std::min(1.0, time / 0.0006) * std::exp(-time / decay);
            add(from, i, 4 * loudness * shape * band(dice_.noise(), std::max(120.0, height), 1.2));
        }
    }

    void bubble(double from, double height, double loudness) {
        const double decay = 0.012 + dice_.upTo(0.03);
        double phase = 0;
        for (int i = 0; i < static_cast<int>(decay * 6 * kRate); ++i) {
            const double time = static_cast<double>(i) / kRate;
            phase += 2 * M_PI * height * (1 + 0.9 * time / (decay * 3)) / kRate;
            add(from, i, loudness * std::min(1.0, time / 0.002) * std::exp(-time / decay) * std::sin(phase));
        }
    }

    void grain(double from, double height, double loudness) {
        switch (layer_.grain) {
            case Grain::bubble:
                return bubble(from, height, loudness);
            case Grain::crackle:
                return burst(from, height, 0.0015, loudness);
            case Grain::crunch:
                return burst(from, height, 0.006 + dice_.upTo(0.006), loudness);
            case Grain::tick:
                return strike(from, height, loudness);
        }
    }

    void grains() {
        for (int i = 0; i < layer_.count; ++i) {
            const double place = layer_.isEven ? static_cast<double>(i) / layer_.count : dice_.upTo(1);
            const double spread = dice_.upTo(1);
            const double height =
                layer_.pitch.first * std::pow(layer_.pitch.second / layer_.pitch.first, spread);
            const int frame = static_cast<int>(place * frames());
            grain(layer_.from + place * layer_.length, height,
                  envelope(frame) * (layer_.isEven ? 1 : 0.35 + dice_.upTo(0.65)));
        }
    }

    /// Wood that sticks and slips: jerks that come ever faster or slower, sounding through a board.
    void creak() {
        Band boards[3];
        double phase = 1;
        for (int i = 0; i < frames(); ++i) {
            phase += pitch(i) * (0.85 + dice_.upTo(0.3)) / kRate;
            const double jerk = phase >= 1 ? 14 : 0;
            if (phase >= 1) phase -= 1;
            const double in = jerk + 0.08 * dice_.noise();
            add(layer_.from, i,
                envelope(i) * (boards[0](in, 640, 0.35) + 0.8 * boards[1](in, 1270, 0.3) +
                               0.5 * boards[2](in, 2350, 0.3)));
        }
    }

    const Layer& layer_;
    std::vector<float>& samples_;
    double gain_;
    Dice dice_;
};

}  // namespace

Sound renderEffect(const Effect& effect) {
    Sound sound{kRate, 1, std::vector<float>(static_cast<size_t>(effect.length * kRate))};
    unsigned seed = static_cast<unsigned>(effect.number) * 64 + 7;
    for (const Layer& layer : effect.layers) LayerPainter(layer, sound.samples, ++seed).paint();
    fadeEnds(sound, 0.001, std::min(0.06, effect.length / 4));
    setPeak(sound, effect.peak);
    return sound;
}

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
