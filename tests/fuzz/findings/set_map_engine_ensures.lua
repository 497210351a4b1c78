-- job:set_map hands the script's text to FSoftObjectPath::SetPath as it is, and the engine's ensures fire on text
-- that is not a long package path: a name without a slash ("Cannot create SoftObjectPath with short package name")
-- and a path with "." segments ("Short asset name used to create FTopLevelAssetPath"). In the editor an ensure
-- is a reported error with a call stack; here the stand-in logs "Ensure condition failed" on stderr. Both calls still
-- log "[OK] set_map -> ..." and the map stored is not the text the line names.
local job = mrq_add_job("Cinematics/Intro")
job:set_map("Main")
print("stored:", job:info().map)
job:set_map("Fz/../../Fz/Q1")
print("stored:", job:info().map)
