-- Prints the folders of $TMPDIR, which hold the temporary project copy of this run.
print("temporary: " .. io.popen('ls "$TMPDIR"'):read("a"):gsub("%s+$", ""))
