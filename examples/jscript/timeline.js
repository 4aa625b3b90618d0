// Builds a time line of two scenes and hears what happens to it.
// Run it with `cscript //nologo timeline.js` where the server is registered.
var murtlotGroup = 0, murtlotScalar = 1, murtlotMedia = 2;

// The functions that hear an event carry the prefix and its name.
function Timeline_TLObjectAdded(key) { WScript.Echo("added: " + key); }
function Timeline_TLObjectAdopted(parent, child) { WScript.Echo("adopted: " + child.Key + " by " + parent.Key); }
function Timeline_TLObjectPropertyChanged(member, name) { WScript.Echo("changed: " + member.Key + " " + name); }

var timeline = WScript.CreateObject("MURTimeline.CMURTimeline", "Timeline_");

var scene = timeline.Add(murtlotGroup, "Scene 1", true);
scene.WorldTimeT0 = 36526.25;  // days: 1 January 2000, six o'clock
scene.Duration = 90;           // seconds
var take = new ActiveXObject("MURTimeline.CMURTimelineMedia");
take.MediaDuration = 30;
scene.Add(take, "Take 1");
timeline.Add(murtlotScalar, "Scene 2").Duration = 15;

WScript.Echo("---");
var total = 0;
for (var members = new Enumerator(timeline); !members.atEnd(); members.moveNext()) {
  var member = members.item();
  WScript.Echo(member.Key + " lasts " + member.Duration + " and has " + member.Count + " children");
  total += member.Duration;
}
WScript.Echo("in all: " + total);

// What is not there is null, never an error.
WScript.Echo("no such member: " + timeline.Item("Scene 3"));
timeline.Clear();
WScript.Echo("members: " + timeline.Count);
