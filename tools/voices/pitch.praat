# The pitch of a sound over time as a picture, and how far it spreads. Called by compare.sh.
form Pitch
    sentence sound
    sentence picture
endform
Read from file: sound$
seconds = Get total duration
To Pitch (ac): 0.01, 60, 15, "no", 0.03, 0.6, 0.01, 0.5, 0.2, 400
middle = Get quantile: 0, 0, 0.5, "Hertz"
spread = Get standard deviation: 0, 0, "semitones"
lowest = Get quantile: 0, 0, 0.03, "Hertz"
highest = Get quantile: 0, 0, 0.97, "Hertz"
Select outer viewport: 0, 9, 0, 3
Draw semitones (re 100 Hz): 0, 0, -8, 20, "yes"
Save as 300-dpi PNG file: picture$
writeInfoLine: fixed$ (middle, 0), " Hz  spread ", fixed$ (spread, 1), " st  range ",
... fixed$ (12 * ln (highest / lowest) / ln (2), 1), " st  ", fixed$ (seconds, 2), " s"
