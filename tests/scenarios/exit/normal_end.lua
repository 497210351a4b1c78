print("done")
