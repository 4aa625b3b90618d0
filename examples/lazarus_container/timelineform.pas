{ The window. Its component is what the importer wrote from the type library; the time line is filled late bound. }
unit TimelineForm;

{$mode delphi}{$H+}

interface

uses
  Classes, Controls, Forms, MURTimeline_1_0_TLB;

const
  SixOClock = 36526.25;  { days: 1 January 2000 }
  SecondsPerDay = 86400;
  ShownSeconds = 120;

type
  TTimelineForm = class(TForm)
  private
    mView: TAxcMURTimelineRender;
    mTimeline: OleVariant;
    procedure Clicked(Sender: TObject; Member: IMURTimelineObject);
    function Add(Kind: MURTimelineObjectType; const Key: WideString; Start, Duration: Double;
      IsTrack: Boolean = True): OleVariant;
    procedure Fill;
    procedure AddMembers;
  public
    constructor Create(Owner: TComponent); override;
    property View: TAxcMURTimelineRender read mView;
    property Timeline: OleVariant read mTimeline;
  end;

implementation

uses
  ComObj, Variants;

constructor TTimelineForm.Create(Owner: TComponent);
begin
  inherited CreateNew(Owner);
  Caption := 'A time line';
  SetBounds(40, 40, 720, 260);
  mView := TAxcMURTimelineRender.Create(Self);
  mView.Align := alClient;
  mView.OnTLObjectClick := Clicked;
  mView.Active := True;
  Fill;
end;

procedure TTimelineForm.Fill;
var
  view: OleVariant;
begin
  view := mView.vObject;
  mTimeline := CreateOleObject('MURTimeline.CMURTimeline');
  view.Timeline := mTimeline;  { attach first, then fill }
  view.WorldTimeT0 := SixOClock;
  view.Duration := ShownSeconds;
  view.AutoObjectCaption[5] := etlctTag;
  view.AllowObjectDragging := True;
  view.FollowAllStarts := True;  { bars go where their objects go }
  AddMembers;
  view.CursorTime := SixOClock + 50 / SecondsPerDay;
  view.AlignTracks;
end;

procedure TTimelineForm.AddMembers;
var
  scene, take: OleVariant;
begin
  scene := Add(murtlotGroup, 'Scene 1', 0, 60);
  take := Add(murtlotMedia, 'Take 1', 10, 0, False);
  take.MediaFilename := 'take.wav';
  take.MediaDuration := 30;
  scene.Add(take, 'Take 1');
  Add(murtlotGroup, 'Scene 2', 45, 50);
  Add(murtlotScalar, 'Bell', 20, 10);
end;

function TTimelineForm.Add(Kind: MURTimelineObjectType; const Key: WideString; Start, Duration: Double;
  IsTrack: Boolean): OleVariant;
begin
  Result := mTimeline.Add(Kind, Key, IsTrack);
  Result.WorldTimeT0 := SixOClock + Start / SecondsPerDay;
  Result.Duration := Duration;
  Result.Tag := Key;
end;

procedure TTimelineForm.Clicked(Sender: TObject; Member: IMURTimelineObject);
begin
  WriteLn('clicked: ', Member.Key);
end;

end.
