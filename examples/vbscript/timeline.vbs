' Builds a time line of two scenes, hears what happens to it, and lets an object of the script hear the rest.
' Run it with `cscript //nologo timeline.vbs` where the server is registered.
Option Explicit

Const murtlotGroup = 0, murtlotScalar = 1, murtlotMedia = 2

' The procedures that hear an event carry the prefix and its name.
Sub Timeline_TLObjectAdded(key)
  WScript.Echo "added:", key
End Sub

Sub Timeline_TLObjectAdopted(parent, child)
  WScript.Echo "adopted:", child.Key, "by", parent.Key
End Sub

Sub Timeline_TLObjectPropertyChanged(member, name, value)
  WScript.Echo "changed:", member.Key, name
End Sub

Sub Timeline_TLObjectRemoved(key, tag)
  WScript.Echo "removed:", key, tag
End Sub

' A sink that a script brings: it hears an object instead of the time line.
Class Watcher
  Public Heard
  Public Sub ObjectAdopted(parent, child)
    Heard = Heard & " +" & child.Key
  End Sub
  Public Sub ObjectOrphaned(parent, child)
    Heard = Heard & " -" & child.Key
  End Sub
  Public Sub ObjectPropertyChanged(member, name, value)
    Heard = Heard & " " & name & "=" & value
  End Sub
End Class

Dim timeline, scene, take, second, watcher_, member
Set timeline = WScript.CreateObject("MURTimeline.CMURTimeline", "Timeline_")

Set scene = timeline.Add(murtlotGroup, "Scene 1", True)
scene.WorldTimeT0 = CDate(36526.25)   ' 1 January 2000, six o'clock
scene.Duration = 90                   ' seconds
Set take = CreateObject("MURTimeline.CMURTimelineMedia")
take.MediaFilename = "take.wav"
take.MediaDuration = 30
scene.Add take, "Take 1"
scene("Take 1").offset = 12

Set second = timeline.Add(murtlotScalar, "Scene 2")
second.Tag = "to be cut"

WScript.Echo "---"
For Each member In timeline
  WScript.Echo member.Key, "lasts", member.Duration, "and has", member.Count, "children"
Next
WScript.Echo scene("Take 1").Key, "starts", Round(scene("Take 1").offset, 3), "seconds after its scene"

WScript.Echo "---"
Set watcher_ = New Watcher
Set scene.EventSink = watcher_
scene.Duration = 120
scene.Remove "Take 1"
WScript.Echo "heard:" & watcher_.Heard

timeline.Remove "Scene 2"
WScript.DisconnectObject timeline
timeline.Clear
WScript.Echo "members:", timeline.Count
