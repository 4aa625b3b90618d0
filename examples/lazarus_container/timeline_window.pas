{ A window with the control in it, by the container of Lazarus: a time line of four bars that can be dragged.

    timeline_window [--script]    with --script a user is played, and what happens is told }
program timeline_window;

{$mode delphi}{$H+}

uses
  Interfaces, Forms, TimelineForm, ScriptedUser;

var
  shown: TTimelineForm;
begin
  Application.Initialize;
  Application.CreateForm(TTimelineForm, shown);
  if ParamStr(1) = '--script' then TScriptedUser.Create(shown);
  Application.Run;
end.
