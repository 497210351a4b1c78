error("the script failed")
