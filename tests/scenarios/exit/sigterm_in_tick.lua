-- vlmr gets SIGTERM while it ticks the editor for a script: the ticking stops, then the script, and vlmr cleans up and
-- ends by the signal.
io.popen("kill -TERM $PPID"):close()
editor.tick(1000000000)
print("the ticks ran to the end")
