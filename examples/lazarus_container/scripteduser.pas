{ Plays a user of the window by real input, a step at a time, and tells what came of it. The next step comes only
  when all input has been dealt with, because timers wait for it. }
unit ScriptedUser;

{$mode delphi}{$H+}

interface

uses
  Classes, ExtCtrls, TimelineForm;

type
  TScriptedUser = class(TTimer)
  private
    mForm: TTimelineForm;
    mStep: Integer;
    procedure TakeStep(Sender: TObject);
    procedure PointAt(const Key: WideString; Seconds: Double);
    procedure Press;
    procedure Release;
    procedure TellSize(const What: string);
    procedure TellStart(const Key: WideString);
    procedure Edit;
    procedure CancelEditor;
    procedure LeaveAndComeBack;
  public
    constructor Create(Form: TComponent); override;
  end;

implementation

uses
  SysUtils, Variants, Windows;

constructor TScriptedUser.Create(Form: TComponent);
begin
  inherited;
  mForm := Form as TTimelineForm;
  Interval := 300;
  OnTimer := TakeStep;
end;

procedure TScriptedUser.TakeStep(Sender: TObject);
begin
  Inc(mStep);
  case mStep of
    1: TellSize('shown');
    2: mForm.SetBounds(80, 60, 720, 320);
    3: TellSize('resized');
    4: begin PointAt('Bell', 25); Press; Release; end;
    5: begin PointAt('Scene 2', 70); Press; end;
    6: PointAt('Scene 2', 75);
    7: begin PointAt('Scene 2', 80); Release; end;
    8: TellStart('Scene 2');
    9: Edit;
    10: CancelEditor;
    11: LeaveAndComeBack;
    12: mForm.Close;
  end;
end;

{ Puts the pointer where a bar shows a time. }
procedure TScriptedUser.PointAt(const Key: WideString; Seconds: Double);
const
  TwipsPerPixel = 15;
var
  view: OleVariant;
  x, y: Double;
  there: TPoint;
begin
  view := mForm.View.vObject;
  x := Seconds * mForm.View.ClientWidth / ShownSeconds;
  y := view.TrackTop(Key) / TwipsPerPixel + view.BarHeight / 2;
  there := mForm.View.ClientToScreen(Classes.Point(Round(x), Round(y)));
  SetCursorPos(there.x, there.y);
end;

procedure TScriptedUser.Press;
begin
  mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
end;

procedure TScriptedUser.Release;
begin
  mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
end;

procedure TScriptedUser.TellSize(const What: string);
var
  area: TRect;
begin
  GetClientRect(GetWindow(mForm.View.Handle, GW_CHILD), area);
  WriteLn(What, ': ', area.Right, ' x ', area.Bottom);
end;

procedure TScriptedUser.TellStart(const Key: WideString);
var
  start: Double;
begin
  start := mForm.Timeline.Item(Key).WorldTimeT0;
  WriteLn(Key, ' starts ', Round((start - SixOClock) * SecondsPerDay), ' s after six o''clock');
end;

{ Returns when the editor has gone; steps are taken meanwhile. }
procedure TScriptedUser.Edit;
begin
  mForm.View.vObject.ShowEditor;
  WriteLn('editor gone');
end;

procedure TScriptedUser.CancelEditor;
begin
  WriteLn('editor in front: ', not IsWindowEnabled(mForm.Handle));
  PostMessage(GetActiveWindow, WM_CLOSE, 0, 0);
end;

procedure TScriptedUser.LeaveAndComeBack;
begin
  mForm.View.Active := False;
  WriteLn('left: ', GetWindow(mForm.View.Handle, GW_CHILD) = 0);
  mForm.View.Active := True;
  TellSize('came back');
end;

end.
