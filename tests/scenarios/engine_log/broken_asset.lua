-- Opens Content/Broken.uasset, a file that is no package: the engine logs a warning for each of its two lookups and
-- an error for the failed load, while the session reports the missing config on stdout.
mrq_open_config("Broken")
print("printed by the script")
