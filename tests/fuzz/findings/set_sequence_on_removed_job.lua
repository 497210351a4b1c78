-- Run with VLMR_GC_STRESS=1. job:set_sequence on a job that has left the queue but is not collected yet: the job's
-- SetSequence loads the sequence, the load collects garbage, the job goes, and SetSequence rebuilds the shot list of
-- the freed job (heap-use-after-free in FindShotByNames). The same fault as queue-3 (set_config), in another method.
-- The object path matters: "/Game/Seq/Shot010" alone names the package, which is no sequence, so nothing is loaded.
local job = mrq_add_job("Cinematics/Intro")
mrq_delete_job(1)
job:set_sequence("/Game/Seq/Shot010.Shot010")
print("no crash")
