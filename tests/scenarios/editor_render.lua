-- editor.tick, editor.run_until_idle and editor.list_files around renders of the editor queue.

check.eq(editor.run_until_idle(10), 0, "nothing renders: no tick")
check.eq(editor.list_files("Saved/NoSuchFolder"), {}, "a missing folder lists no files")
check.raises(function() editor.list_files() end, "string expected", "folder required")

-- The test executor of editor.set_rendering renders until told to stop, so waiting runs out of frames.
editor.set_rendering(true)
check.eq(editor.run_until_idle(7), 7, "a render that never ends uses every frame")
check.eq(editor.tick(2), 2, "ticks while rendering")
editor.set_rendering(false)
check.eq(editor.run_until_idle(7), 0, "idle again")

-- A real render with the project's default executor.
local job = mrq_allocate_job("Seq/Shot010")
job:find_or_add_setting("ImageSequenceOutput_PNG")
local output = job:find_or_add_setting("MoviePipelineOutputSetting")
output:set("OutputDirectory", '(Path="{project_dir}/Saved/EditorRender")')
output:set("FileNameFormat", "{sequence_name}.{version}.{frame_number}")
output:set("bUseCustomFrameRate", "True")
output:set("OutputFrameRate", "(Numerator=2,Denominator=1)")

check.eq(mrq_render_queue(), true, "the render starts")
check.eq(mrq_is_rendering(), true, "rendering before any tick")
-- Shot010 lasts 5 seconds: 10 frames at 2 fps, after one tick to start play-in-editor and before one to finalize.
check.eq(editor.run_until_idle(1000), 12, "one tick per frame")
check.eq(mrq_is_rendering(), false, "idle after the render")
local files = editor.list_files("Saved/EditorRender")
check.eq(#files, 10, "one file per frame")
check.eq(files[1], "Shot010.v001.0000.png", "first frame")
check.eq(files[10], "Shot010.v001.0009.png", "last frame")

check.summary()
