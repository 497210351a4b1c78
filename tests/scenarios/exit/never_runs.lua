print("a script after os.exit ran")
