#include "Rendering/HeadlessCanvas.h"

#include "Containers/StringConv.h"

#include <cairo.h>
#include <pango/pangocairo.h>

namespace
{
constexpr int32 MaxSide = 8192;
/** Far outside any picture, and near enough for the drawing library's fixed-point numbers. */
constexpr double MaxPlace = 1e6;
/** A longer line is no label any more. */
constexpr int32 MaxTextLength = 512;

void SetColor(cairo_t* Cairo, const FColor& Color)
{
	cairo_set_source_rgba(Cairo, Color.R / 255.0, Color.G / 255.0, Color.B / 255.0, Color.A / 255.0);
}

void AddCorners(cairo_t* Cairo, TConstArrayView<FVector2D> Corners)
{
	cairo_new_path(Cairo);
	for (const FVector2D& Corner : Corners)
	{
		cairo_line_to(Cairo, Corner.X, Corner.Y);
	}
	cairo_close_path(Cairo);
}

/** A rectangle with round corners: quarters of circles, from the upper right one on. */
void AddBox(cairo_t* Cairo, const FBox2D& Box, double UpperRadius, double LowerRadius)
{
	const double Most = FMath::Max(FMath::Min(Box.GetSize().X, Box.GetSize().Y) / 2.0, 0.0);
	const double Upper = FMath::Clamp(UpperRadius, 0.0, Most);
	const double Lower = FMath::Clamp(LowerRadius, 0.0, Most);
	constexpr double Quarter = UE_DOUBLE_PI / 2.0;
	cairo_new_path(Cairo);
	cairo_arc(Cairo, Box.Max.X - Upper, Box.Min.Y + Upper, Upper, -Quarter, 0.0);
	cairo_arc(Cairo, Box.Max.X - Lower, Box.Max.Y - Lower, Lower, 0.0, Quarter);
	cairo_arc(Cairo, Box.Min.X + Lower, Box.Max.Y - Lower, Lower, Quarter, 2.0 * Quarter);
	cairo_arc(Cairo, Box.Min.X + Upper, Box.Min.Y + Upper, Upper, 2.0 * Quarter, 3.0 * Quarter);
	cairo_close_path(Cairo);
}

void SetText(PangoLayout* Layout, const FString& Text, const FCanvasTextStyle& Style)
{
	PangoFontDescription* const Font = pango_font_description_new();
	pango_font_description_set_family_static(Font, "DejaVu Sans");
	pango_font_description_set_absolute_size(Font, Style.Size * PANGO_SCALE);
	pango_font_description_set_weight(Font, Style.bBold ? PANGO_WEIGHT_BOLD : PANGO_WEIGHT_NORMAL);
	pango_font_description_set_style(Font, Style.bItalic ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
	pango_layout_set_font_description(Layout, Font);
	pango_font_description_free(Font);
	pango_layout_set_single_paragraph_mode(Layout, TRUE);
	pango_layout_set_text(Layout, reinterpret_cast<const char*>(TCHAR_TO_UTF8(*Text.Left(MaxTextLength))), -1);
}
}

/** What the drawing library keeps of a picture. */
struct FHeadlessCanvas::FPens
{
	explicit FPens(const FIntPoint& Size)
		: Surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, Size.X, Size.Y))
		, Cairo(cairo_create(Surface))
		, Layout(pango_cairo_create_layout(Cairo))
	{
		cairo_set_line_join(Cairo, CAIRO_LINE_JOIN_ROUND);
		cairo_set_line_cap(Cairo, CAIRO_LINE_CAP_ROUND);
		// The same picture at every scale and on every machine: letters stand where their outlines are.
		cairo_font_options_t* const Options = cairo_font_options_create();
		cairo_font_options_set_antialias(Options, CAIRO_ANTIALIAS_GRAY);
		cairo_font_options_set_hint_style(Options, CAIRO_HINT_STYLE_NONE);
		cairo_font_options_set_hint_metrics(Options, CAIRO_HINT_METRICS_OFF);
		pango_cairo_context_set_font_options(pango_layout_get_context(Layout), Options);
		cairo_font_options_destroy(Options);
	}
	~FPens()
	{
		g_object_unref(Layout);
		cairo_destroy(Cairo);
		cairo_surface_destroy(Surface);
	}
	UE_NONCOPYABLE(FPens)

	void Stroke(const FColor& Color, double Width)
	{
		SetColor(Cairo, Color);
		cairo_set_line_width(Cairo, Width);
		cairo_stroke(Cairo);
	}
	void Fill(const FColor& Color)
	{
		SetColor(Cairo, Color);
		cairo_fill(Cairo);
	}

	cairo_surface_t* const Surface;
	cairo_t* const Cairo;
	PangoLayout* const Layout;
};

FHeadlessCanvas::FHeadlessCanvas(const FIntPoint& InSize, const FColor& Background)
	: Size(FMath::Clamp(InSize.X, 1, MaxSide), FMath::Clamp(InSize.Y, 1, MaxSide))
	, Pens(MakeUnique<FPens>(Size))
{
	SetColor(Pens->Cairo, Background);
	cairo_paint(Pens->Cairo);
}

FHeadlessCanvas::~FHeadlessCanvas() = default;

void FHeadlessCanvas::SetView(const FVector2D& Origin, double InScale, const FVector2D& Corner)
{
	Scale = InScale;
	cairo_reset_clip(Pens->Cairo);
	cairo_identity_matrix(Pens->Cairo);
	cairo_translate(Pens->Cairo, Corner.X, Corner.Y);
	cairo_scale(Pens->Cairo, Scale, Scale);
	cairo_translate(Pens->Cairo, -FMath::Clamp(Origin.X, -1e9, 1e9), -FMath::Clamp(Origin.Y, -1e9, 1e9));
}

void FHeadlessCanvas::Clip(const FBox2D& Box)
{
	AddBox(Pens->Cairo, Box, 0.0, 0.0);
	cairo_clip(Pens->Cairo);
}

void FHeadlessCanvas::FillBox(const FBox2D& Box, const FColor& Color, double Radius)
{
	AddBox(Pens->Cairo, Box, Radius, Radius);
	Pens->Fill(Color);
}

void FHeadlessCanvas::FillGradient(
	const FBox2D& Box, const FColor& Left, const FColor& Right, double UpperRadius, double LowerRadius)
{
	cairo_pattern_t* const Gradient = cairo_pattern_create_linear(Box.Min.X, 0.0, Box.Max.X, 0.0);
	cairo_pattern_add_color_stop_rgba(Gradient, 0.0, Left.R / 255.0, Left.G / 255.0, Left.B / 255.0, Left.A / 255.0);
	cairo_pattern_add_color_stop_rgba(Gradient, 1.0, Right.R / 255.0, Right.G / 255.0, Right.B / 255.0, Right.A / 255.0);
	AddBox(Pens->Cairo, Box, UpperRadius, LowerRadius);
	cairo_set_source(Pens->Cairo, Gradient);
	cairo_fill(Pens->Cairo);
	cairo_pattern_destroy(Gradient);
}

void FHeadlessCanvas::DrawBox(const FBox2D& Box, const FColor& Color, double Width, double Radius)
{
	AddBox(Pens->Cairo, Box, Radius, Radius);
	Pens->Stroke(Color, Width);
}

void FHeadlessCanvas::FillShape(TConstArrayView<FVector2D> Corners, const FColor& Color)
{
	AddCorners(Pens->Cairo, Corners);
	Pens->Fill(Color);
}

void FHeadlessCanvas::DrawShape(TConstArrayView<FVector2D> Corners, const FColor& Color, double Width)
{
	AddCorners(Pens->Cairo, Corners);
	Pens->Stroke(Color, Width);
}

void FHeadlessCanvas::FillCircle(const FVector2D& Center, double Radius, const FColor& Color)
{
	cairo_new_path(Pens->Cairo);
	cairo_arc(Pens->Cairo, Center.X, Center.Y, Radius, 0.0, 2.0 * UE_DOUBLE_PI);
	Pens->Fill(Color);
}

void FHeadlessCanvas::DrawCircle(const FVector2D& Center, double Radius, const FColor& Color, double Width)
{
	cairo_new_path(Pens->Cairo);
	cairo_arc(Pens->Cairo, Center.X, Center.Y, Radius, 0.0, 2.0 * UE_DOUBLE_PI);
	Pens->Stroke(Color, Width);
}

void FHeadlessCanvas::DrawLine(const FVector2D& From, const FVector2D& To, const FColor& Color, double Width)
{
	cairo_new_path(Pens->Cairo);
	cairo_move_to(Pens->Cairo, From.X, From.Y);
	cairo_line_to(Pens->Cairo, To.X, To.Y);
	Pens->Stroke(Color, Width);
}

void FHeadlessCanvas::DrawCurve(
	const FVector2D& From, const FVector2D& FromHandle, const FVector2D& ToHandle, const FVector2D& To, const FColor& Color, double Width)
{
	cairo_new_path(Pens->Cairo);
	cairo_move_to(Pens->Cairo, From.X, From.Y);
	cairo_curve_to(Pens->Cairo, FromHandle.X, FromHandle.Y, ToHandle.X, ToHandle.Y, To.X, To.Y);
	Pens->Stroke(Color, Width);
}

void FHeadlessCanvas::DrawText(const FString& Text, const FVector2D& Corner, const FCanvasTextStyle& Style, double MaxWidth)
{
	SetText(Pens->Layout, Text, Style);
	pango_layout_set_ellipsize(Pens->Layout, MaxWidth > 0.0 ? PANGO_ELLIPSIZE_END : PANGO_ELLIPSIZE_NONE);
	pango_layout_set_width(Pens->Layout, MaxWidth > 0.0 ? int(FMath::Min(MaxWidth, MaxPlace) * PANGO_SCALE) : -1);
	SetColor(Pens->Cairo, Style.Color);
	cairo_move_to(Pens->Cairo, Corner.X, Corner.Y);
	pango_cairo_show_layout(Pens->Cairo, Pens->Layout);
	cairo_new_path(Pens->Cairo);
}

FVector2D FHeadlessCanvas::MeasureText(const FString& Text, const FCanvasTextStyle& Style)
{
	static FPens Pens(FIntPoint(1, 1));
	SetText(Pens.Layout, Text, Style);
	int Width = 0;
	int Height = 0;
	pango_layout_get_size(Pens.Layout, &Width, &Height);
	return FVector2D(double(Width) / PANGO_SCALE, double(Height) / PANGO_SCALE);
}

TArray<FColor> FHeadlessCanvas::ReadPixels() const
{
	cairo_surface_flush(Pens->Surface);
	const uint8* const Bytes = cairo_image_surface_get_data(Pens->Surface);
	const int32 Stride = cairo_image_surface_get_stride(Pens->Surface);
	TArray<FColor> Pixels;
	Pixels.Reserve(Size.X * Size.Y);
	for (int32 Y = 0; Bytes && Y < Size.Y; ++Y)
	{
		const uint32* const Row = reinterpret_cast<const uint32*>(Bytes + SIZE_T(Y) * SIZE_T(Stride));
		for (int32 X = 0; X < Size.X; ++X)
		{
			Pixels.Add(FColor(Row[X] | 0xFF000000u));
		}
	}
	return Pixels;
}
