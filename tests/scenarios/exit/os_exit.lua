-- os.exit ends the run with its code: nothing after it runs, neither in this script nor in the next one.
os.exit(3)
print("after os.exit")
