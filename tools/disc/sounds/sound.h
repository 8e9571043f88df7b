#pragma once

#include <QString>
#include <vector>

namespace sarne::disc {

/// Sound as numbers between -1 and 1, the channels of a moment side by side.
struct Sound {
    int rate = 44100;
    int channels = 1;
    std::vector<float> samples;

    int frames() const { return static_cast<int>(samples.size()) / channels; }
    double seconds() const { return static_cast<double>(frames()) / rate; }
    float& at(int frame, int channel) { return samples[place(frame, channel)]; }
    float at(int frame, int channel) const { return samples[place(frame, channel)]; }

  private:
    size_t place(int frame, int channel) const {
        return static_cast<size_t>(frame) * static_cast<size_t>(channels) + static_cast<size_t>(channel);
    }
};

double fromDecibels(double decibels);

/// The largest deflection, 0 for silence.
float peakOf(const Sound& sound);
/// Brings the largest deflection to \a decibels (0 is the most a file can hold). Silence stays silence.
void setPeak(Sound& sound, double decibels);
/// Lets the sound begin and end at rest. Times in seconds.
void fadeEnds(Sound& sound, double in, double out);
/// Takes away what is quieter than \a decibels at both ends, but for \a kept seconds.
void trimSilence(Sound& sound, double decibels, double kept);

/// A 16-bit WAV file. False when it cannot be written whole.
bool writeWav(const QString& file, const Sound& sound);
/// Reads a WAV file; a sound without samples when it is none.
Sound readWav(const QString& file);

}  // namespace sarne::disc

// SPDX-License-Identifier: GPL-3.0-or-later
