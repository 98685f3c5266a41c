# Times Snack's ESPS formant tracker on a WAV file: prints the frame count and the seconds of `snd formant`
# alone, the best of the runs asked for (default 3).
package require sound
set file [lindex $argv 0]
set runs [expr {[llength $argv] > 1 ? [lindex $argv 1] : 3}]
snack::sound snd -load $file
set best 1e9
for {set i 0} {$i < $runs} {incr i} {
    set t0 [clock microseconds]
    set result [snd formant]
    set t1 [clock microseconds]
    set best [expr {min($best, ($t1 - $t0) / 1e6)}]
}
puts "[llength $result] $best"
