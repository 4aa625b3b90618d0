' The third line is wrong, and nothing after it runs.
WScript.Echo "before"
Err.Raise 13, "failing.vbs", "meant to fail"
WScript.Echo "never"
