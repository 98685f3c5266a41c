# Times Praat's Burg formant tracker on a WAV file: prints the frame count and the seconds of `To Formant (burg)`
# alone, the best of the runs asked for. Four formants every 10 ms below 5000 Hz, as Sonalys tracks them.
#   praat --run bench/praat_formant.praat FILE.wav RUNS
form Formants
    sentence File
    natural Runs 3
endform
sound = Read from file: file$
best = 1e9
for run to runs
    selectObject: sound
    stopwatch
    formant = To Formant (burg): 0.01, 4, 5000, 0.025, 50
    seconds = stopwatch
    best = min(best, seconds)
    frames = Get number of frames
    removeObject: formant
endfor
writeInfoLine: frames, " ", fixed$(best, 6)
